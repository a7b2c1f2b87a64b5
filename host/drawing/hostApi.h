// SPDX-License-Identifier: MIT
#pragma once

// Marks what a host gives to loadable modules. The only macro of these headers: without it a module
// built with hidden visibility could not reach the host's vtables.
#if defined(_WIN32)
#if defined(KV_HOST_BUILD)
#define KV_HOST_API __declspec(dllexport)
#else
#define KV_HOST_API __declspec(dllimport)
#endif
#else
#define KV_HOST_API __attribute__((visibility("default")))
#endif

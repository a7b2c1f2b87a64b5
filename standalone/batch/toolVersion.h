// SPDX-License-Identifier: MIT
#pragma once

/// "0.1.0"
const char *toolVersion();

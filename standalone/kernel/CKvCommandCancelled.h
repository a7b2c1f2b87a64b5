// SPDX-License-Identifier: MIT
#pragma once

#include <exception>

/// The user broke the running command off. No failure: nobody shows it.
class CKvCommandCancelled : public std::exception
{
public:
    const char *what() const noexcept override { return "The command was cancelled."; }
};

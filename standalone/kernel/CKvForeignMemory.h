// SPDX-License-Identifier: MIT
#pragma once

/// While it lives, memory that is taken does not count as lost in a build that looks for leaks, nor
/// does what hangs on it. A module may leave objects behind when it goes, which is its own affair.
class CKvForeignMemory
{
public:
    CKvForeignMemory();
    ~CKvForeignMemory();
    CKvForeignMemory(const CKvForeignMemory &) = delete;
    CKvForeignMemory &operator=(const CKvForeignMemory &) = delete;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

#include <cstddef>
#include <new>

/// Memory of the host for objects that cross the border between host and modules.
/// @return null when there is none.
KV_HOST_API void *odrxAlloc(std::size_t bytes);
/// @param memory from odrxAlloc, or null.
KV_HOST_API void odrxFree(void *memory);

/// What an object's allocation throws; its text is "bad allocation" on every platform.
class KV_HOST_API OdBadAllocation : public std::bad_alloc
{
public:
    const char *what() const noexcept override { return "bad allocation"; }
};

// SPDX-License-Identifier: MIT
#include "odrxAlloc.h"

#include <cstdint>
#include <cstdlib>

void *odrxAlloc(std::size_t bytes)
{
    // More than a difference of pointers can tell is refused here, whatever the platform does.
    return bytes > std::size_t(PTRDIFF_MAX) ? nullptr : std::malloc(bytes);
}

void odrxFree(void *memory)
{
    std::free(memory);
}

// SPDX-License-Identifier: MIT
#include "CKvForeignMemory.h"

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace
{

#ifdef __SANITIZE_ADDRESS__
void stopCounting()
{
    __lsan_disable();
}

void goOnCounting()
{
    __lsan_enable();
}
#else
void stopCounting() { }

void goOnCounting() { }
#endif

} // namespace

CKvForeignMemory::CKvForeignMemory()
{
    stopCounting();
}

CKvForeignMemory::~CKvForeignMemory()
{
    goOnCounting();
}

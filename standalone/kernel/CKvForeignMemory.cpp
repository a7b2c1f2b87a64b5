// SPDX-License-Identifier: MIT
#include "CKvForeignMemory.h"

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

CKvForeignMemory::CKvForeignMemory()
{
#ifdef __SANITIZE_ADDRESS__
    __lsan_disable();
#endif
}

CKvForeignMemory::~CKvForeignMemory()
{
#ifdef __SANITIZE_ADDRESS__
    __lsan_enable();
#endif
}

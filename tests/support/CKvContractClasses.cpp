// SPDX-License-Identifier: MIT
#include "CKvContractClasses.h"

#include "CKvStdsError.h"
#include "CKvStdsFix.h"
#include "CKvStdsPlugins.h"

CKvContractClasses::CKvContractClasses()
{
    CKvStdsPlugins::rxInit();
    CKvStdsFix::rxInit();
    CKvStdsError::rxInit();
}

CKvContractClasses::~CKvContractClasses()
{
    CKvStdsFix::rxUninit();
    CKvStdsError::rxUninit();
    CKvStdsPlugins::rxUninit();
}

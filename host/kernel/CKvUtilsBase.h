// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"
#include "hostApi.h"

/// Small services of the host that need no object.
class KV_HOST_API CKvUtilsBase
{
public:
    /// Login name of the operating system's user; empty when it has none.
    static CKvString getUserName();
};

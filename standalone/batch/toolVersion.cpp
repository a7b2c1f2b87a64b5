// SPDX-License-Identifier: MIT
#include "toolVersion.h"

const char *toolVersion()
{
    return KV_VERSION;
}

// SPDX-License-Identifier: MIT
#include "CKvSystemServices.h"

namespace
{

CKvSystemServices *s_services = nullptr;

} // namespace

CKvSystemServices *GetKvSystemServices()
{
    return s_services;
}

void SetKvSystemServices(CKvSystemServices *services)
{
    s_services = services;
}

// SPDX-License-Identifier: MIT
#include "CKvStdsManager.h"

namespace
{

CKvStdsManager *s_manager = nullptr;

} // namespace

CKvStdsManager *GetKvStandardManager()
{
    return s_manager;
}

void SetKvStandardManager(CKvStdsManager *manager)
{
    s_manager = manager;
}

// SPDX-License-Identifier: MIT
#include "CKvStdsPlugins.h"

#include "OdRxClass.h"

namespace
{

OdRxClass *s_class = nullptr;

} // namespace

OdRxClass *CKvStdsPlugins::desc()
{
    return s_class;
}

void CKvStdsPlugins::rxInit()
{
    s_class = newOdRxClass(OdString("CKvStdsPlugins"),
                           OdRxObject::desc(),
                           nullptr,
                           0,
                           0,
                           0,
                           OdString::kEmpty,
                           OdString::kEmpty,
                           nullptr,
                           0);
}

void CKvStdsPlugins::rxUninit()
{
    deleteOdRxClass(s_class);
    s_class = nullptr;
}

OdRxObject *CKvStdsPlugins::queryX(const OdRxClass *wanted) const
{
    return OdRxObject::queryX(wanted);
}

OdRxClass *CKvStdsPlugins::isA() const
{
    return s_class ? s_class : OdRxObject::isA();
}

// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbText.h"

class OdDbAttribute;
using OdDbAttributePtr = OdSmartPtr<OdDbAttribute>;

/// The attribute of an insertion (ATTRIB).
class KV_HOST_API OdDbAttribute : public OdDbText
{
public:
    static OdRxClass *desc();
    static OdDbAttributePtr cast(const OdRxObject *object);
};

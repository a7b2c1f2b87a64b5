// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbText.h"

class OdDbAttributeDefinition;
using OdDbAttributeDefinitionPtr = OdSmartPtr<OdDbAttributeDefinition>;

/// What an attribute is made from (ATTDEF).
class KV_HOST_API OdDbAttributeDefinition : public OdDbText
{
public:
    static OdRxClass *desc();
    static OdDbAttributeDefinitionPtr cast(const OdRxObject *object);
};

// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObject.h"

class OdDbMaterial;
using OdDbMaterialPtr = OdSmartPtr<OdDbMaterial>;

/// A material.
class KV_HOST_API OdDbMaterial : public OdDbObject
{
public:
    static OdRxClass *desc();
    static OdDbMaterialPtr cast(const OdRxObject *object);

    /// Group 1.
    OdString name() const;
};

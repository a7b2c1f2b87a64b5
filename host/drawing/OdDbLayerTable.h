// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTable.h"

class OdDbLayerTable;
using OdDbLayerTablePtr = OdSmartPtr<OdDbLayerTable>;

/// Layers.
class KV_HOST_API OdDbLayerTable : public OdDbSymbolTable
{
public:
    static OdRxClass *desc();
    static OdDbLayerTablePtr cast(const OdRxObject *object);
};

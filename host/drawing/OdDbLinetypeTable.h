// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTable.h"

class OdDbLinetypeTable;
using OdDbLinetypeTablePtr = OdSmartPtr<OdDbLinetypeTable>;

/// Line styles.
class KV_HOST_API OdDbLinetypeTable : public OdDbSymbolTable
{
public:
    static OdRxClass *desc();
    static OdDbLinetypeTablePtr cast(const OdRxObject *object);
};

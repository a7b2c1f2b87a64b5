// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTable.h"

class OdDbBlockTable;
using OdDbBlockTablePtr = OdSmartPtr<OdDbBlockTable>;

/// Blocks, model space and paper spaces among them. A block that lacks its record in the table is
/// walked all the same.
class KV_HOST_API OdDbBlockTable : public OdDbSymbolTable
{
public:
    static OdRxClass *desc();
    static OdDbBlockTablePtr cast(const OdRxObject *object);
};

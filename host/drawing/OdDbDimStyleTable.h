// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTable.h"

class OdDbDimStyleTable;
using OdDbDimStyleTablePtr = OdSmartPtr<OdDbDimStyleTable>;

/// Dimension styles.
class KV_HOST_API OdDbDimStyleTable : public OdDbSymbolTable
{
public:
    static OdRxClass *desc();
    static OdDbDimStyleTablePtr cast(const OdRxObject *object);
};

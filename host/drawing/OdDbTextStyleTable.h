// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTable.h"

class OdDbTextStyleTable;
using OdDbTextStyleTablePtr = OdSmartPtr<OdDbTextStyleTable>;

/// Text styles.
class KV_HOST_API OdDbTextStyleTable : public OdDbSymbolTable
{
public:
    static OdRxClass *desc();
    static OdDbTextStyleTablePtr cast(const OdRxObject *object);
};

// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTableRecord.h"

/// What a window of model space shows: a record of the table VPORT.
class KV_HOST_API OdDbViewportTableRecord : public OdDbSymbolTableRecord
{
public:
    static OdRxClass *desc();
};

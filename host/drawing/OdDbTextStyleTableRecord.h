// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTableRecord.h"

class OdDbTextStyleTableRecord;
using OdDbTextStyleTableRecordPtr = OdSmartPtr<OdDbTextStyleTableRecord>;

/// A text style, or the shape file of a complex line style.
class KV_HOST_API OdDbTextStyleTableRecord : public OdDbSymbolTableRecord
{
public:
    static OdRxClass *desc();
    static OdDbTextStyleTableRecordPtr cast(const OdRxObject *object);
    static OdDbTextStyleTableRecordPtr createObject();
};

// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTableRecord.h"

class OdDbDimStyleTableRecord;
using OdDbDimStyleTableRecordPtr = OdSmartPtr<OdDbDimStyleTableRecord>;

/// A dimension style.
class KV_HOST_API OdDbDimStyleTableRecord : public OdDbSymbolTableRecord
{
public:
    static OdRxClass *desc();
    static OdDbDimStyleTableRecordPtr cast(const OdRxObject *object);
    static OdDbDimStyleTableRecordPtr createObject();
};

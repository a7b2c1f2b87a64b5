// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTableRecord.h"

class OdDbLinetypeTableRecord;
using OdDbLinetypeTableRecordPtr = OdSmartPtr<OdDbLinetypeTableRecord>;

/// A line style.
class KV_HOST_API OdDbLinetypeTableRecord : public OdDbSymbolTableRecord
{
public:
    static OdRxClass *desc();
    static OdDbLinetypeTableRecordPtr cast(const OdRxObject *object);
    static OdDbLinetypeTableRecordPtr createObject();

    /// Group 73; 0 when the file has none.
    int numDashes() const;
    /// Group 40, in drawing units.
    double patternLength() const;
};

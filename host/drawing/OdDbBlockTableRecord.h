// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObjectIterator.h"
#include "OdDbSymbolTableRecord.h"

class OdDbBlockTableRecord;
using OdDbBlockTableRecordPtr = OdSmartPtr<OdDbBlockTableRecord>;

/// A block, or one of the spaces.
class KV_HOST_API OdDbBlockTableRecord : public OdDbSymbolTableRecord
{
public:
    static OdRxClass *desc();
    static OdDbBlockTableRecordPtr cast(const OdRxObject *object);

    /// Flag 4 or 8 on the BLOCK.
    bool isFromExternalReference() const;
    OdDbObjectIteratorPtr
    newIterator(bool fromBeginning = true, bool skipErased = true, bool isSorted = false) const;
};

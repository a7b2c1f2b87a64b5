// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTableIterator.h"
#include "OdDbSymbolTableRecord.h"

class OdDbSymbolTable;
using OdDbSymbolTablePtr = OdSmartPtr<OdDbSymbolTable>;

/// A table of named records. Names are found without regard to case; of two records of one name the
/// first of the file is found.
class KV_HOST_API OdDbSymbolTable : public OdDbObject
{
public:
    static OdRxClass *desc();
    static OdDbSymbolTablePtr cast(const OdRxObject *object);

    /// Null when there is no such record.
    OdDbObjectId getAt(const OdString &name, bool getErased = false) const;
    /// The record itself, open; null when there is none.
    OdDbSymbolTableRecordPtr
    getAt(const OdString &name, OdDb::OpenMode mode, bool getErased = false) const;
    bool has(const OdString &name) const { return !getAt(name).isNull(); }
    /// True for a record of this table that is not erased.
    bool has(OdDbObjectId id) const;
    OdDbSymbolTableIteratorPtr newIterator(bool fromBeginning = true, bool skipErased = true) const;
    /// Enters a record in the table; one that addOdDbObject put into this drawing keeps its id.
    /// @throws OdError kDuplicateName when the name is taken.
    OdDbObjectId add(const OdDbSymbolTableRecordPtr &record);
};

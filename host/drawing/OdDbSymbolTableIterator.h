// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTableRecord.h"

#include <memory>

class CKvSymbolTableWalk;
class OdDbSymbolTableIterator;
using OdDbSymbolTableIteratorPtr = OdSmartPtr<OdDbSymbolTableIterator>;

/// Walks the records of a table in the order of the file.
class KV_HOST_API OdDbSymbolTableIterator : public OdRxObject
{
public:
    explicit OdDbSymbolTableIterator(std::unique_ptr<CKvSymbolTableWalk> walk);
    ~OdDbSymbolTableIterator() override;

    void start(bool fromBeginning = true, bool skipErased = true);
    bool done() const;
    void step(bool forward = true, bool skipErased = true);
    OdDbObjectId getRecordId() const;
    /// @throws OdError when the walk is done.
    OdDbSymbolTableRecordPtr getRecord(OdDb::OpenMode mode = OdDb::kForRead,
                                       bool openErased = false) const;

private:
    std::unique_ptr<CKvSymbolTableWalk> m_walk;
};

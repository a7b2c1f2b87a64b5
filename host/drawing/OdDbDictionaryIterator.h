// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObject.h"

#include <memory>

class CKvDictionaryWalk;
class OdDbDictionaryIterator;
using OdDbDictionaryIteratorPtr = OdSmartPtr<OdDbDictionaryIterator>;

/// Walks the entries of a dictionary whose objects are there.
class KV_HOST_API OdDbDictionaryIterator : public OdRxObject
{
public:
    explicit OdDbDictionaryIterator(std::unique_ptr<CKvDictionaryWalk> walk);
    ~OdDbDictionaryIterator() override;

    bool done() const;
    /// @return false when the step led past the last entry.
    bool next();
    OdString name() const;
    OdDbObjectId objectId() const;
    OdDbObjectPtr getObject(OdDb::OpenMode mode = OdDb::kForRead) const;

private:
    std::unique_ptr<CKvDictionaryWalk> m_walk;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbEntity.h"

#include <memory>

class CKvEntityWalk;
class OdDbObjectIterator;
using OdDbObjectIteratorPtr = OdSmartPtr<OdDbObjectIterator>;

/// Walks the entities of a block in the order of the file, the attributes of an insertion behind
/// it. Vertices and end marks belong to their polyline or insertion and are not met.
class KV_HOST_API OdDbObjectIterator : public OdRxObject
{
public:
    explicit OdDbObjectIterator(std::unique_ptr<CKvEntityWalk> walk);
    ~OdDbObjectIterator() override;

    void start(bool fromBeginning = true, bool skipErased = true);
    bool done() const;
    void step(bool forward = true, bool skipErased = true);
    OdDbObjectId objectId() const;
    /// @throws OdError when the walk is done.
    OdDbEntityPtr entity(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;

private:
    std::unique_ptr<CKvEntityWalk> m_walk;
};

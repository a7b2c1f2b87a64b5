// SPDX-License-Identifier: MIT
#pragma once

#include "OdArray.h"
#include "OdDb.h"
#include "OdDbHandle.h"
#include "OdSmartPtr.h"
#include "hostApi.h"

class CKvObjectSlot;
class OdDbDatabase;
class OdDbObject;
using OdDbObjectPtr = OdSmartPtr<OdDbObject>;

/// Names an object of an open drawing for as long as the drawing is open, erased or not. As small
/// as a pointer; null by default.
class KV_HOST_API OdDbObjectId
{
public:
    OdDbObjectId() = default;
    explicit OdDbObjectId(CKvObjectSlot *slot)
        : m_slot(slot)
    {
    }

    bool isNull() const { return m_slot == nullptr; }
    /// True for an erased object; false for null.
    bool isErased() const;
    /// Null for a null id.
    OdDbDatabase *database() const;
    /// Null when the drawing gives the object none.
    OdDbHandle handle() const;

    /// @return the object, or null: no id, or erased and not openErased.
    OdDbObjectPtr openObject(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;
    /// As openObject, but throws OdError (kNullObjectId, kObjectWasErased) in place of null.
    OdDbObjectPtr safeOpenObject(OdDb::OpenMode mode = OdDb::kForRead,
                                 bool openErased = false) const;

    friend bool operator==(OdDbObjectId a, OdDbObjectId b) { return a.m_slot == b.m_slot; }
    friend bool operator!=(OdDbObjectId a, OdDbObjectId b) { return a.m_slot != b.m_slot; }
    /// By drawing, then by handle, then by place in the file.
    friend KV_HOST_API bool operator<(OdDbObjectId a, OdDbObjectId b);

    /// The host's own record of the object.
    CKvObjectSlot *slot() const { return m_slot; }

private:
    CKvObjectSlot *m_slot = nullptr;
};

using OdDbObjectIdArray = OdArray<OdDbObjectId>;
/// An id that keeps its object from being purged.
using OdDbHardPointerId = OdDbObjectId;

// SPDX-License-Identifier: MIT
#include "OdDbObjectId.h"

#include "CKvDrawingStore.h"
#include "CKvObjectAccess.h"
#include "OdDbDatabase.h"

#include <functional>
#include <tuple>

bool OdDbObjectId::isErased() const
{
    return m_slot && m_slot->isErased;
}

OdDbDatabase *OdDbObjectId::database() const
{
    return m_slot && m_slot->store ? m_slot->store->database : nullptr;
}

OdDbHandle OdDbObjectId::handle() const
{
    return m_slot && m_slot->store && m_slot->store->hasHandles() ? OdDbHandle(m_slot->handle)
                                                                  : OdDbHandle();
}

OdDbObjectPtr OdDbObjectId::openObject(OdDb::OpenMode mode, bool openErased) const
{
    if (!m_slot || (m_slot->isErased && !openErased)) {
        return OdDbObjectPtr();
    }
    return CKvObjectAccess::open(*m_slot, mode);
}

OdDbObjectPtr OdDbObjectId::safeOpenObject(OdDb::OpenMode mode, bool openErased) const
{
    if (!m_slot) {
        throw OdError(OdResult::kNullObjectId, "There is no object to open.");
    }
    if (m_slot->isErased && !openErased) {
        throw OdError(OdResult::kObjectWasErased, "The object was erased.");
    }
    return CKvObjectAccess::open(*m_slot, mode);
}

bool operator<(OdDbObjectId a, OdDbObjectId b)
{
    if (!a.m_slot || !b.m_slot) {
        return !a.m_slot && b.m_slot;
    }
    if (a.m_slot->store != b.m_slot->store) {
        return std::less<>()(a.m_slot->store, b.m_slot->store);
    }
    return std::tie(a.m_slot->handle, a.m_slot->serial)
        < std::tie(b.m_slot->handle, b.m_slot->serial);
}

// SPDX-License-Identifier: MIT
#include "CKvObjectAccess.h"

#include "CKvDrawingStore.h"
#include "OdDbDatabase.h"
#include "OdDbDatabaseReactor.h"
#include "OdRxClass.h"
#include "tellReactors.h"

namespace
{

template <class Event> void tell(const CKvObjectSlot &slot, Event event)
{
    const CKvDrawingStore &store = *slot.store;
    tellReactors(store.reactors,
                 [&](OdDbDatabaseReactor &reactor) { event(reactor, store.database); });
}

} // namespace

OdDbObjectPtr CKvObjectAccess::open(CKvObjectSlot &slot, OdDb::OpenMode mode)
{
    OdRxObjectPtr made = slot.rxClass->create();
    // Every class of a slot makes an OdDbObject, so this is no guess.
    OdDbObjectPtr object(static_cast<OdDbObject *>(made.detach()), kOdRxObjAttach);
    object->m_slot = &slot;
    if (mode == OdDb::kForWrite) {
        openForWrite(*object);
    }
    return object;
}

void CKvObjectAccess::makeDetached(OdDbObject &object, std::string_view type)
{
    auto slot = std::make_unique<CKvDetachedSlot>();
    slot->role = CKvObjectSlot::Role::Detached;
    slot->isNew = true;
    slot->own = std::make_unique<std::string>();
    appendTag(*slot->own, slot->format().style, 0, type);
    object.m_slot = slot.release();
    object.m_isOpenForWrite = true;
}

CKvObjectSlot &CKvObjectAccess::beginChange(OdDbObject &object)
{
    if (!object.m_isOpenForWrite) {
        throw OdError_NotOpenForWrite();
    }
    CKvObjectSlot &slot = *object.m_slot;
    if (slot.store && !slot.isModified) {
        tell(slot, [&](OdDbDatabaseReactor &reactor, const OdDbDatabase *database) {
            reactor.objectOpenedForModify(database, &object);
        });
        slot.isModified = true;
    }
    return slot;
}

void CKvObjectAccess::openForWrite(OdDbObject &object)
{
    if (!object.m_isOpenForWrite) {
        object.m_isOpenForWrite = true;
        ++object.m_slot->writers;
    }
}

void CKvObjectAccess::moveTo(OdDbObject &object, CKvObjectSlot &slot)
{
    abandon(object);
    object.m_slot = &slot;
    openForWrite(object);
}

void CKvObjectAccess::close(OdDbObject &object)
{
    CKvObjectSlot *slot = object.m_slot;
    if (!object.m_isOpenForWrite || !slot->store) {
        return;
    }
    object.m_isOpenForWrite = false;
    if (--slot->writers > 0) {
        return;
    }
    slot->isNew = false;
    if (!std::exchange(slot->isModified, false) || slot->isErased) {
        return;
    }
    tell(*slot, [&](OdDbDatabaseReactor &reactor, const OdDbDatabase *database) {
        reactor.objectModified(database, &object);
    });
}

void CKvObjectAccess::abandon(OdDbObject &object)
{
    CKvObjectSlot *slot = std::exchange(object.m_slot, nullptr);
    const bool wasOpenForWrite = std::exchange(object.m_isOpenForWrite, false);
    if (!slot) {
        return;
    }
    if (!slot->store) {
        delete static_cast<CKvDetachedSlot *>(slot);
    } else if (wasOpenForWrite) {
        --slot->writers;
    }
}

void CKvObjectAccess::tellAppended(const OdDbObject &object)
{
    tell(*object.m_slot, [&](OdDbDatabaseReactor &reactor, const OdDbDatabase *database) {
        reactor.objectAppended(database, &object);
    });
}

void CKvObjectAccess::tellErased(const OdDbObject &object)
{
    tell(*object.m_slot, [&](OdDbDatabaseReactor &reactor, const OdDbDatabase *database) {
        reactor.objectErased(database, &object, object.m_slot->isErased);
    });
}

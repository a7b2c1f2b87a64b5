// SPDX-License-Identifier: MIT
#include "OdDbObject.h"

#include "CKvDrawingStore.h"
#include "CKvObjectAccess.h"
#include "CKvObjectImporter.h"
#include "OdDbDatabase.h"
#include "OdDbDictionary.h"
#include "extensionDictionary.h"
#include "objectTags.h"
#include "rxConstruction.h"

OdDbObject::OdDbObject()
    : m_slot(nullptr)
    , m_isOpenForWrite(false)
{
}

OdDbObject::~OdDbObject()
{
    CKvObjectAccess::abandon(*this);
}

OdRxClass *OdDbObject::desc()
{
    static OdRxClass s_class(OdString("OdDbObject"), OdRxObject::desc(), nullptr, OdString::kEmpty);
    return &s_class;
}

OdDbObjectPtr OdDbObject::cast(const OdRxObject *object)
{
    return castRx<OdDbObject>(object);
}

OdRxClass *OdDbObject::isA() const
{
    return m_slot && m_slot->rxClass ? m_slot->rxClass : desc();
}

void OdDbObject::release()
{
    // The reactors get the object while it is whole, so before the last reference goes.
    if (numRefs() == 1 && m_slot) {
        CKvObjectAccess::close(*this);
    }
    OdRxObject::release();
}

OdDbObjectId OdDbObject::objectId() const
{
    return m_slot && m_slot->store ? OdDbObjectId(m_slot) : OdDbObjectId();
}

OdDbDatabase *OdDbObject::database() const
{
    return m_slot && m_slot->store ? m_slot->store->database : nullptr;
}

OdDbObjectId OdDbObject::ownerId() const
{
    if (!m_slot || !m_slot->store) {
        return OdDbObjectId();
    }
    if (m_slot->owner) {
        return OdDbObjectId(m_slot->owner);
    }
    const std::optional<CKvTag> owner = findFirstTag(*m_slot, 330);
    return owner ? OdDbObjectId(m_slot->store->findByHandle(owner->handle())) : OdDbObjectId();
}

bool OdDbObject::isWriteEnabled() const
{
    return m_isOpenForWrite;
}

bool OdDbObject::isErased() const
{
    return m_slot && m_slot->isErased;
}

bool OdDbObject::isNewObject() const
{
    return m_slot && m_slot->isNew;
}

bool OdDbObject::isModified() const
{
    return m_slot && m_slot->isModified;
}

void OdDbObject::upgradeOpen()
{
    CKvObjectAccess::openForWrite(*this);
}

void OdDbObject::downgradeOpen()
{
    CKvObjectAccess::close(*this);
}

void OdDbObject::erase(bool isErasing)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (!slot.store || slot.isErased == isErasing) {
        return;
    }
    setErased(slot, isErasing);
    CKvObjectAccess::tellErased(*this);
}

OdDbObjectId OdDbObject::extensionDictionary() const
{
    if (!m_slot || !m_slot->store) {
        return OdDbObjectId();
    }
    return OdDbObjectId(findExtensionDictionary(*m_slot));
}

void OdDbObject::createExtensionDictionary()
{
    if (!extensionDictionary().isNull()) {
        return;
    }
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (!slot.store) {
        throw OdError(OdResult::kInvalidInput,
                      "An object of no drawing can't have an extension dictionary.");
    }
    if (!slot.store->format().hasDictionaries()) {
        throw OdError(
            OdResult::kUnsupportedByVersion,
            "A drawing of R12 or older has no place for this. Save it as R2000 or newer first.");
    }
    requireHandle(slot);
    OdDbDictionaryPtr dictionary = OdDbDictionary::createObject();
    CKvObjectImporter importer(*slot.store);
    importer.adopt(*dictionary, CKvObjectSlot::Role::Object, &slot, 0);
    CKvObjectAccess::tellAppended(*dictionary);
    insertExtensionGroup(slot, dictionary->objectId().slot()->handle);
}

void OdDbObject::handOverTo(const OdDbObjectPtr &other,
                            bool keepExtendedData,
                            bool keepExtensionDictionary)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (!slot.store || !other || !other->m_slot) {
        throw OdError(OdResult::kInvalidInput, "There is no object to hand over to.");
    }
    CKvObjectImporter(*slot.store)
        .replaceContent(slot, *other->m_slot, keepExtendedData, keepExtensionDictionary);
    CKvObjectAccess::moveTo(*other, slot);
    CKvObjectAccess::abandon(*this);
    CKvObjectAccess::makeDetached(
        *this, slot.bytes().empty() ? std::string_view() : findTag(slot, 0)->word());
}

OdRxObjectPtr OdDbObject::clone() const
{
    if (!m_slot) {
        return OdRxObjectPtr();
    }
    OdRxObjectPtr made = m_slot->rxClass->create();
    OdDbObjectPtr copy(static_cast<OdDbObject *>(made.detach()), kOdRxObjAttach);
    CKvObjectAccess::makeDetached(*copy, std::string_view());
    auto &target = static_cast<CKvDetachedSlot &>(*copy->m_slot);
    target.rxClass = m_slot->rxClass;
    *target.own = std::string(m_slot->bytes());
    if (m_slot->store) {
        target.origin = OdRxObjectPtr(static_cast<OdRxObject *>(m_slot->store->database));
    } else {
        target.origin = static_cast<const CKvDetachedSlot &>(*m_slot).origin;
    }
    return copy;
}

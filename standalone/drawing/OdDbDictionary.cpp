// SPDX-License-Identifier: MIT
#include "OdDbDictionary.h"

#include "CKvDrawingStore.h"
#include "CKvNameIndex.h"
#include "CKvObjectAccess.h"
#include "CKvObjectImporter.h"
#include "CKvTagReader.h"
#include "dictionaryEntries.h"
#include "extensionDictionary.h"
#include "objectTags.h"
#include "rxConstruction.h"

#include <algorithm>

std::vector<CKvDictionaryEntry> dictionaryEntries(const CKvObjectSlot &dictionary)
{
    std::vector<CKvDictionaryEntry> entries;
    std::optional<CKvTag> key;
    for (const CKvTag &tag : ownTags(dictionary)) {
        if (tag.code == 3) {
            key = tag;
        } else if (key && (tag.code == 350 || tag.code == 360)) {
            entries.push_back(
                { dictionary.format().codec.decode(key->value), tag.handle(), *key, tag });
            key.reset();
        }
    }
    return entries;
}

namespace
{

std::optional<CKvDictionaryEntry> findEntry(const CKvObjectSlot &dictionary, const QString &key)
{
    const QString folded = foldedName(key);
    for (const CKvDictionaryEntry &entry : dictionaryEntries(dictionary)) {
        if (foldedName(entry.key) == folded) {
            return entry;
        }
    }
    return std::nullopt;
}

CKvObjectSlot *entryObject(const CKvObjectSlot &dictionary, const CKvDictionaryEntry &entry)
{
    CKvObjectSlot *slot = dictionary.store ? dictionary.store->findByHandle(entry.handle) : nullptr;
    return slot && !slot->isErased ? slot : nullptr;
}

void eraseEntryObject(const CKvObjectSlot &dictionary, const CKvDictionaryEntry &entry)
{
    CKvObjectSlot *slot = entryObject(dictionary, entry);
    if (slot && slot->role == CKvObjectSlot::Role::Object) {
        setErased(*slot, true);
    }
}

/// Behind the last pair, or behind the last own tag of a dictionary without one.
std::size_t endOfEntries(const CKvObjectSlot &dictionary)
{
    const std::vector<CKvDictionaryEntry> entries = dictionaryEntries(dictionary);
    return entries.empty() ? endOfOwnTags(dictionary) : entries.back().handleTag.end;
}

/// 360 owns what it names, 350 shares it; a dictionary keeps to one of the two.
int entryHandleCode(const CKvObjectSlot &dictionary)
{
    const std::vector<CKvDictionaryEntry> entries = dictionaryEntries(dictionary);
    if (!entries.empty()) {
        return entries.back().handleTag.code;
    }
    const std::optional<CKvTag> isOwner = findTag(dictionary, 280);
    return isOwner && isOwner->integer() != 0 ? 360 : 350;
}

} // namespace

/// The entries of a dictionary in the order of a walk, as they were at its begin.
class CKvDictionaryWalk
{
public:
    CKvDictionaryWalk(const CKvObjectSlot &dictionary, OdDbDictionary::IteratorType type)
    {
        for (const CKvDictionaryEntry &entry : dictionaryEntries(dictionary)) {
            if (CKvObjectSlot *slot = entryObject(dictionary, entry)) {
                m_entries.push_back({ entry.key, slot });
            }
        }
        if (type == OdDbDictionary::IteratorType::kSortedByKey) {
            std::stable_sort(
                m_entries.begin(), m_entries.end(), [](const Entry &a, const Entry &b) {
                    return a.key.toUcs4() < b.key.toUcs4();
                });
        }
    }
    struct Entry {
        QString key;
        CKvObjectSlot *slot;
    };
    bool isDone() const { return m_at >= m_entries.size(); }
    void step() { ++m_at; }
    const Entry &entry() const
    {
        if (isDone()) {
            throw OdError(OdResult::kInvalidInput, "The walk over the dictionary is done.");
        }
        return m_entries[m_at];
    }

private:
    std::vector<Entry> m_entries;
    std::size_t m_at = 0;
};

OdDbDictionaryIterator::OdDbDictionaryIterator(std::unique_ptr<CKvDictionaryWalk> walk)
    : m_walk(std::move(walk))
{
}

OdDbDictionaryIterator::~OdDbDictionaryIterator() = default;

bool OdDbDictionaryIterator::done() const
{
    return m_walk->isDone();
}

bool OdDbDictionaryIterator::next()
{
    m_walk->step();
    return !m_walk->isDone();
}

OdString OdDbDictionaryIterator::name() const
{
    return OdString(m_walk->entry().key);
}

OdDbObjectId OdDbDictionaryIterator::objectId() const
{
    return OdDbObjectId(m_walk->entry().slot);
}

OdDbObjectPtr OdDbDictionaryIterator::getObject(OdDb::OpenMode mode) const
{
    return objectId().openObject(mode);
}

OdRxClass *OdDbDictionary::desc()
{
    static OdRxClass s_class(OdString("OdDbDictionary"),
                             OdDbObject::desc(),
                             &constructRx<OdDbDictionary>,
                             OdString("DICTIONARY"));
    return &s_class;
}

OdDbDictionaryPtr OdDbDictionary::cast(const OdRxObject *object)
{
    return castRx<OdDbDictionary>(object);
}

OdDbDictionaryPtr OdDbDictionary::createObject()
{
    OdDbDictionaryPtr dictionary(new OdDbDictionary, kOdRxObjAttach);
    CKvObjectAccess::makeDetached(*dictionary, "DICTIONARY");
    CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*dictionary);
    slot.rxClass = desc();
    appendTag(*slot.own, slot.format().style, 100, "AcDbDictionary");
    appendTag(*slot.own, slot.format().style, 281, "1");
    return dictionary;
}

OdDbObjectId OdDbDictionary::getAt(const OdString &key) const
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    const std::optional<CKvDictionaryEntry> entry = findEntry(slot, key.toQString());
    return entry ? OdDbObjectId(entryObject(slot, *entry)) : OdDbObjectId();
}

OdDbObjectPtr OdDbDictionary::getAt(const OdString &key, OdDb::OpenMode mode) const
{
    return getAt(key).openObject(mode);
}

OdString OdDbDictionary::nameAt(OdDbObjectId id) const
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    for (const CKvDictionaryEntry &entry : dictionaryEntries(slot)) {
        if (!id.isNull() && entryObject(slot, entry) == id.slot()) {
            return OdString(entry.key);
        }
    }
    return OdString();
}

OdDbObjectId OdDbDictionary::setAt(const OdString &key, const OdDbObjectPtr &object)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (!slot.store || !object) {
        throw OdError(OdResult::kInvalidInput, "Only a dictionary of a drawing takes objects.");
    }
    const bool isNew = object->database() != slot.store->database;
    if (isNew) {
        CKvObjectImporter(*slot.store).adopt(*object, CKvObjectSlot::Role::Object, &slot, 0);
    }
    CKvObjectSlot &held = *CKvObjectAccess::slotOf(*object);
    const std::string handle = handleToText(held.handle);
    const std::optional<CKvDictionaryEntry> entry = findEntry(slot, key.toQString());
    if (entry) {
        if (entry->handle != held.handle) {
            eraseEntryObject(slot, *entry);
        }
        replaceTagValue(slot.ownBytes(), entry->handleTag, handle);
    } else {
        std::string pair;
        appendTag(pair, slot.format().style, 3, slot.format().codec.encode(key.toQString()));
        appendTag(pair, slot.format().style, entryHandleCode(slot), handle);
        const std::size_t at = endOfEntries(slot);
        slot.ownBytes().insert(at, pair);
    }
    if (isNew) {
        CKvObjectAccess::tellAppended(*object);
    }
    return object->objectId();
}

void OdDbDictionary::remove(const OdString &key)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    const std::optional<CKvDictionaryEntry> entry = findEntry(slot, key.toQString());
    if (!entry) {
        return;
    }
    eraseEntryObject(slot, *entry);
    removeTag(slot.ownBytes(), entry->handleTag);
    removeTag(slot.ownBytes(), entry->keyTag);
}

OdDbDictionaryIteratorPtr OdDbDictionary::newIterator(IteratorType type) const
{
    auto walk = std::make_unique<CKvDictionaryWalk>(*CKvObjectAccess::slotOf(*this), type);
    return OdDbDictionaryIteratorPtr(new OdDbDictionaryIterator(std::move(walk)), kOdRxObjAttach);
}

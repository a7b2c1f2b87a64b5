// SPDX-License-Identifier: MIT
#include "extensionDictionary.h"

#include "CKvChangeJournal.h"
#include "CKvDrawingStore.h"
#include "CKvTagReader.h"
#include "OdDbDictionary.h"
#include "dictionaryEntries.h"
#include "objectTags.h"

#include <set>

namespace
{

constexpr std::string_view kExtensionGroup = "ACAD_XDICTIONARY";

CKvTable *tableOf(const CKvObjectSlot &record)
{
    for (std::size_t i = 0; i < kTableCount; ++i) {
        CKvTable &table = record.store->table(CKvTableKind(i));
        if (&table.head() == record.owner) {
            return &table;
        }
    }
    return nullptr;
}

/// What hangs on an object: its extension dictionary, and what a dictionary holds.
std::vector<CKvObjectSlot *> hangingOn(const CKvObjectSlot &slot)
{
    std::vector<CKvObjectSlot *> hanging;
    if (slot.role == CKvObjectSlot::Role::Object && slot.rxClass == OdDbDictionary::desc()) {
        for (const CKvDictionaryEntry &entry : dictionaryEntries(slot)) {
            CKvObjectSlot *held = slot.store->findRecordByHandle(entry.handle);
            if (held && held->role == CKvObjectSlot::Role::Object) {
                hanging.push_back(held);
            }
        }
    }
    if (CKvObjectSlot *dictionary = findExtensionDictionary(slot)) {
        hanging.push_back(dictionary);
    }
    return hanging;
}

void setErasedAlone(CKvObjectSlot &slot, bool isErased)
{
    if (slot.store->journal) {
        slot.store->journal->willChange(slot);
    }
    slot.isErased = isErased;
    slot.store->touch(slot);
    if (slot.role == CKvObjectSlot::Role::Record) {
        if (CKvTable *table = tableOf(slot)) {
            table->erasedChanged(slot);
        }
    }
}

} // namespace

CKvObjectSlot *findExtensionDictionary(const CKvObjectSlot &slot)
{
    const std::optional<CKvTagRange> group = findBracedGroup(slot, kExtensionGroup);
    if (!group || !slot.store) {
        return nullptr;
    }
    CKvTagReader reader(slot.bytes().substr(0, group->end), slot.form(), group->begin);
    while (reader.next()) {
        if (reader.tag().code == 360 || reader.tag().code == 350) {
            CKvObjectSlot *found = slot.store->findRecordByHandle(reader.tag().handle());
            // A damaged file may name any object.
            return found && found->rxClass == OdDbDictionary::desc() ? found : nullptr;
        }
    }
    return nullptr;
}

void requireHandle(CKvObjectSlot &slot)
{
    if (slot.handle != 0) {
        return;
    }
    if (slot.store->journal) {
        slot.store->journal->willChange(slot);
    }
    slot.handle = slot.store->newHandle();
    const std::optional<CKvTag> type = findTag(slot, 0);
    const int code = type && type->word() == "DIMSTYLE" ? 105 : 5;
    insertTag(slot.ownBytes(),
              type ? type->end : 0,
              slot.format().style,
              code,
              handleToText(slot.handle));
    slot.store->registerHandle(slot);
    slot.store->writeHandleSeed();
}

void insertExtensionGroup(CKvObjectSlot &slot, std::uint64_t dictionary)
{
    if (const std::optional<CKvTagRange> stale = findBracedGroup(slot, kExtensionGroup)) {
        slot.ownBytes().erase(stale->begin, stale->end - stale->begin);
    }
    std::string group;
    const CKvTagStyle &style = slot.format().style;
    appendTag(group, style, 102, "{ACAD_XDICTIONARY");
    appendTag(group, style, 360, handleToText(dictionary));
    appendTag(group, style, 102, "}");
    const std::optional<CKvTag> type = findTag(slot, 0);
    const int code = type && type->word() == "DIMSTYLE" ? 105 : 5;
    const std::optional<CKvTag> handle = findTag(slot, code);
    slot.ownBytes().insert(handle ? handle->end : 0, group);
}

void setErased(CKvObjectSlot &slot, bool isErased)
{
    // A list of work and not a call for each level: a file can nest as deep as it likes, or in a
    // circle.
    std::set<const CKvObjectSlot *> seen;
    std::vector<CKvObjectSlot *> open { &slot };
    while (!open.empty()) {
        CKvObjectSlot *next = open.back();
        open.pop_back();
        if (seen.insert(next).second) {
            for (CKvObjectSlot *held : hangingOn(*next)) {
                open.push_back(held);
            }
            setErasedAlone(*next, isErased);
        }
    }
}

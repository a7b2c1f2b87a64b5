// SPDX-License-Identifier: MIT
#include "CKvDrawingStore.h"
#include "CKvEntityIndex.h"
#include "CKvObjectAccess.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdDbSymbolTableRecord.h"
#include "impliedNames.h"
#include "nameUses.h"
#include "namingSettings.h"
#include "objectTags.h"
#include "recordNames.h"
#include "rxConstruction.h"

#include <algorithm>

namespace
{

CKvTable *tableOf(CKvObjectSlot &record)
{
    for (std::size_t i = 0; record.store && i < kTableCount; ++i) {
        if (record.store->isRecordOf(record, CKvTableKind(i))) {
            return &record.store->table(CKvTableKind(i));
        }
    }
    return nullptr;
}

bool isReserved(CKvTableKind kind, const QString &name)
{
    const QString folded = foldedName(name);
    if (kind == CKvTableKind::Layer) {
        return folded == QLatin1String("0");
    }
    return kind == CKvTableKind::Linetype
        && (folded == QLatin1String("bylayer") || folded == QLatin1String("byblock")
            || folded == QLatin1String("continuous"));
}

void requireRename(CKvTable &table,
                   const CKvObjectSlot &record,
                   const QString &oldName,
                   const QString &name)
{
    if (isReserved(table.kind(), oldName)) {
        throw OdError(OdResult::kInvalidInput,
                      "\"" + oldName.toStdString() + "\" can't be renamed.");
    }
    requireValidName(name);
    const CKvObjectSlot *other = table.find(name);
    if (other && other != &record) {
        throw OdError(OdResult::kDuplicateName,
                      "The drawing has a record of the name \"" + name.toStdString()
                          + "\" already.");
    }
}

/// Rewrites the old name wherever the drawing uses it.
void rewriteUses(CKvDrawingStore &store,
                 CKvTableKind kind,
                 const QString &oldName,
                 const std::string &newName)
{
    const QString folded = foldedName(oldName);
    const auto rewrite = [&](CKvObjectSlot &slot) {
        std::vector<CKvTag> tags;
        forEachNameUse(slot, CKvUses::All, [&](CKvTableKind used, const CKvTag &tag) {
            if (used == kind && foldedName(store.format().codec.decode(tag.value)) == folded) {
                tags.push_back(tag);
            }
        });
        std::sort(tags.begin(), tags.end(), [](const CKvTag &a, const CKvTag &b) {
            return a.begin < b.begin;
        });
        // From the last to the first, so that the offsets of those before stay true.
        for (auto tag = tags.rbegin(); tag != tags.rend(); ++tag) {
            replaceTagValue(slot.ownBytes(), *tag, newName);
        }
    };
    forEachUndrawnSlot(store, rewrite);
    // What names none goes on to mean the record, which now has to be named.
    const bool isImplied = isMeantByNone(kind, oldName);
    for (CKvObjectSlot *user : store.entities().users().usersOf(kind, oldName)) {
        if (!user->isErased) {
            rewrite(*user);
            if (isImplied) {
                writeImpliedName(*user, kind, newName);
            }
        }
    }
    if (isImplied) {
        writeImpliedCurrent(store, kind, newName);
    }
}

/// The block itself stands apart from its record, and is all there is in drawings of R12 and older.
void renameBlock(CKvObjectSlot &record, const QString &oldName, const std::string &newName)
{
    CKvObjectSlot *begin = record.store->entities().contentsOf(record).begin;
    for (const int code : { 2, 3 }) {
        const std::optional<CKvTag> name = begin ? findTag(*begin, code) : std::nullopt;
        if (name && foldedName(record.format().codec.decode(name->value)) == foldedName(oldName)) {
            replaceTagValue(begin->ownBytes(), *name, newName);
        }
    }
}

} // namespace

OdRxClass *OdDbSymbolTableRecord::desc()
{
    static OdRxClass s_class(OdString("OdDbSymbolTableRecord"),
                             OdDbObject::desc(),
                             &constructRx<OdDbSymbolTableRecord>,
                             OdString::kEmpty);
    return &s_class;
}

OdDbSymbolTableRecordPtr OdDbSymbolTableRecord::cast(const OdRxObject *object)
{
    return castRx<OdDbSymbolTableRecord>(object);
}

OdString OdDbSymbolTableRecord::getName() const
{
    const CKvObjectSlot *slot = CKvObjectAccess::slotOf(*this);
    return slot ? OdString(recordName(*slot)) : OdString();
}

void OdDbSymbolTableRecord::setName(const OdString &name)
{
    CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    const QString oldName = recordName(slot);
    const QString &newName = name.toQString();
    if (oldName == newName) {
        CKvObjectAccess::beginChange(*this);
        return;
    }
    CKvTable *table = tableOf(slot);
    if (table) {
        requireRename(*table, slot, oldName, newName);
    } else {
        requireValidName(newName);
    }
    CKvObjectAccess::beginChange(*this);
    // Users mean the first record of a name; a second one can go without them.
    const bool isTheOneMeant = table && table->find(oldName) == &slot;
    const std::vector<CKvNamingSetting> settings = isTheOneMeant
        ? settingsNaming(*slot.store, table->kind(), slot)
        : std::vector<CKvNamingSetting>();
    const std::string encoded = slot.format().codec.encode(newName);
    setTag(slot, 2, encoded, { 100, 5, 0 });
    if (table) {
        table->nameChanged(slot, oldName);
    }
    if (table && table->kind() == CKvTableKind::Block) {
        renameBlock(slot, oldName, encoded);
    }
    if (isTheOneMeant) {
        rewriteUses(*slot.store, table->kind(), oldName, encoded);
        nameInSettings(*slot.store, settings, encoded);
    }
}

bool OdDbSymbolTableRecord::isDependent() const
{
    constexpr int kDependentFlag = 16;
    // The second 70 of a dimension style is a colour.
    const bool hasColorBehind = isKindOf(OdDbDimStyleTableRecord::desc());
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    const std::optional<CKvTag> flags = hasColorBehind ? findFirstTag(slot, 70) : findTag(slot, 70);
    return (flags && (flags->integer() & kDependentFlag) != 0)
        || getName().toQString().contains(QLatin1Char('|'));
}

// SPDX-License-Identifier: MIT
#include "newEntity.h"

#include "CKvDrawingStore.h"
#include "CKvEntityIndex.h"
#include "CKvObjectAccess.h"

CKvObjectSlot &addToModelSpace(CKvDrawingStore &store, const CKvNewEntity &entity)
{
    const CKvTagStyle &style = store.format().style;
    CKvEntityIndex &index = store.entities();
    CKvObjectSlot &space = store.blockOrNew(QStringLiteral("*Model_Space"));
    CKvObjectSlot &slot = store.makeSlot(CKvObjectSlot::Role::Entity, entity.type);
    slot.owner = &space;
    slot.isNew = true;
    slot.handle = store.hasHandles() ? store.newHandle() : 0;
    const bool hasSubclasses = store.format().hasDictionaries();
    std::string bytes;
    appendTag(bytes, style, 0, entity.type);
    if (slot.handle != 0) {
        appendTag(bytes, style, 5, handleToText(slot.handle));
    }
    if (hasSubclasses) {
        if (space.handle != 0) {
            appendTag(bytes, style, 330, handleToText(space.handle));
        }
        appendTag(bytes, style, 100, "AcDbEntity");
    }
    appendTag(bytes, style, 8, entity.layer);
    for (const auto &[code, value] : entity.commonGroups) {
        appendTag(bytes, style, code, value);
    }
    if (hasSubclasses) {
        appendTag(bytes, style, 100, entity.subclass);
    }
    for (const auto &[code, value] : entity.groups) {
        appendTag(bytes, style, code, value);
    }
    slot.ownBytes() = std::move(bytes);
    index.add(slot);
    index.contentsOf(space).entities.push_back(&slot);
    // Opened and closed, so that it counts as new no longer.
    const OdDbObjectPtr object = CKvObjectAccess::open(slot, OdDb::kForWrite);
    CKvObjectAccess::tellAppended(*object);
    return slot;
}

// SPDX-License-Identifier: MIT
#include "slotOrigin.h"

#include "CKvDrawingStore.h"
#include "OdDbDatabase.h"

CKvDrawingStore *storeOf(const CKvObjectSlot &slot)
{
    if (slot.store) {
        return slot.store;
    }
    const auto &detached = static_cast<const CKvDetachedSlot &>(slot);
    return detached.origin ? &static_cast<OdDbDatabase *>(detached.origin.get())->store() : nullptr;
}

const CKvTextCodec &codecOf(const CKvObjectSlot &slot)
{
    const CKvDrawingStore *store = storeOf(slot);
    return store ? store->format().codec : slot.format().codec;
}

CKvTagForm formOf(const CKvObjectSlot &slot)
{
    const CKvDrawingStore *store = storeOf(slot);
    return store ? store->format().style.form : slot.form();
}

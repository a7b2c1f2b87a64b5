// SPDX-License-Identifier: MIT
#include "purge.h"

#include "CKvDrawingStore.h"
#include "CKvTagReader.h"
#include "nameUses.h"
#include "recordNames.h"

#include <map>
#include <set>

namespace
{

using CKvSlotSet = std::set<const CKvObjectSlot *>;

struct CKvLastingName {
    CKvTableKind table;
    const char *foldedName;
};

constexpr CKvLastingName kLastingNames[] = {
    { CKvTableKind::Layer, "0" },
    { CKvTableKind::Layer, "defpoints" },
    { CKvTableKind::Linetype, "bylayer" },
    { CKvTableKind::Linetype, "byblock" },
    { CKvTableKind::Linetype, "continuous" },
    { CKvTableKind::TextStyle, "standard" },
    { CKvTableKind::DimStyle, "standard" },
};

bool isLasting(const CKvDrawingStore &store, const CKvObjectSlot &slot)
{
    for (const CKvLastingName &lasting : kLastingNames) {
        if (store.isRecordOf(slot, lasting.table)
            && foldedName(recordName(slot)) == QLatin1String(lasting.foldedName)) {
            return true;
        }
    }
    return false;
}

/// A pointer that keeps its object: not 330 to 339, which are owners and soft pointers.
bool isKeepingPointer(int code)
{
    return (code >= 320 && code <= 329) || (code >= 340 && code <= 369)
        || (code >= 390 && code <= 399) || code == 480 || code == 481;
}

/// Who refers to the candidates.
class CKvReferenceSearch
{
public:
    CKvReferenceSearch(CKvDrawingStore &store, const CKvSlotSet &candidates)
        : m_store(store)
        , m_candidates(candidates)
    {
    }

    void visit(const CKvObjectSlot &slot)
    {
        const bool hasPointers = slot.role != CKvObjectSlot::Role::Header && m_store.hasHandles();
        forEachNameUse(
            slot,
            CKvUses::OnlyReferences,
            [&](CKvTableKind kind, const CKvTag &tag) {
                note(slot, m_store.table(kind).findEncoded(tag.value));
            },
            [&](const CKvTag &tag) {
                if (hasPointers && isKeepingPointer(tag.code)) {
                    note(slot, m_store.findRecordByHandle(tag.handle()));
                    noteNamed(slot, tag);
                }
            });
    }

    /// The candidates that stay: used by what is no candidate, or by one that stays.
    CKvSlotSet staying() const
    {
        CKvSlotSet staying = m_staying;
        std::vector<const CKvObjectSlot *> open(staying.begin(), staying.end());
        while (!open.empty()) {
            const CKvObjectSlot *user = open.back();
            open.pop_back();
            const auto [first, last] = m_usedBy.equal_range(user);
            for (auto used = first; used != last; ++used) {
                if (staying.insert(used->second).second) {
                    open.push_back(used->second);
                }
            }
        }
        return staying;
    }

private:
    void note(const CKvObjectSlot &user, const CKvObjectSlot *used)
    {
        if (!used || used == &user || m_candidates.count(used) == 0) {
            return;
        }
        if (m_candidates.count(&user) != 0) {
            m_usedBy.emplace(&user, used);
        } else {
            m_staying.insert(used);
        }
    }
    /// Some writers put the name in place of the handle in a dimension style.
    void noteNamed(const CKvObjectSlot &user, const CKvTag &tag)
    {
        if (!m_store.isRecordOf(user, CKvTableKind::DimStyle) || tag.code < 340 || tag.code > 347
            || m_store.findRecordByHandle(tag.handle())) {
            return;
        }
        const CKvTableKind kind = tag.code == 340 ? CKvTableKind::TextStyle
            : tag.code < 345                      ? CKvTableKind::Block
                                                  : CKvTableKind::Linetype;
        note(user, m_store.table(kind).findEncoded(tag.value));
    }

    CKvDrawingStore &m_store;
    const CKvSlotSet &m_candidates;
    CKvSlotSet m_staying;
    std::multimap<const CKvObjectSlot *, const CKvObjectSlot *> m_usedBy;
};

} // namespace

void keepPurgeable(CKvDrawingStore &store, OdDbObjectIdArray &ids)
{
    CKvSlotSet candidates;
    for (const OdDbObjectId id : ids) {
        const CKvObjectSlot *slot = id.slot();
        if (slot && slot->store == &store && !slot->isErased
            && slot->role == CKvObjectSlot::Role::Record && !isLasting(store, *slot)) {
            candidates.insert(slot);
        }
    }
    CKvReferenceSearch search(store, candidates);
    if (!candidates.empty()) {
        forEachSlot(store, [&](CKvObjectSlot &slot) { search.visit(slot); });
    }
    const CKvSlotSet staying = search.staying();
    OdDbObjectIdArray purgeable;
    for (const OdDbObjectId id : ids) {
        if (candidates.count(id.slot()) != 0 && staying.count(id.slot()) == 0) {
            purgeable.append(id);
        }
    }
    ids = purgeable;
}

// SPDX-License-Identifier: MIT
#include "purge.h"

#include "CKvDrawingStore.h"
#include "CKvEntityIndex.h"
#include "entityLayer.h"
#include "nameUses.h"
#include "recordNames.h"

#include <algorithm>
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

    /// Asks who names a candidate or holds its handle; an entity is no candidate itself, so one
    /// that does is enough.
    void askEntities()
    {
        CKvUserIndex &users = m_store.entities().users();
        for (const CKvObjectSlot *candidate : m_candidates) {
            const CKvTableKind kind = kindOf(*candidate);
            const auto names = [&](const CKvObjectSlot *user) {
                return isNamed(*candidate, kind, *user);
            };
            bool isUsed = users.hasUser(kind, recordName(*candidate), names);
            if (!isUsed && candidate->handle != 0 && m_store.hasHandles()) {
                const std::vector<CKvObjectSlot *> found = users.holdersOf(candidate->handle);
                isUsed = std::any_of(found.begin(), found.end(), [&](const CKvObjectSlot *user) {
                    return isHeld(*candidate, *user);
                });
            }
            if (isUsed) {
                m_staying.insert(candidate);
            }
        }
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
    CKvTableKind kindOf(const CKvObjectSlot &record) const
    {
        std::size_t kind = 0;
        while (kind + 1 < kTableCount && !m_store.isRecordOf(record, CKvTableKind(kind))) {
            ++kind;
        }
        return CKvTableKind(kind);
    }
    bool isNamed(const CKvObjectSlot &record, CKvTableKind kind, const CKvObjectSlot &user) const
    {
        if (user.isErased) {
            return false;
        }
        // Merged entities, maybe a million, are asked where they stand now and not read anew.
        if (kind == CKvTableKind::Layer && user.hasPlainLayer()) {
            return m_store.table(kind).findEncoded(encodedLayer(user)) == &record;
        }
        bool isFound = false;
        forEachNameUse(user, CKvUses::OnlyReferences, [&](CKvTableKind used, const CKvTag &tag) {
            isFound =
                isFound || (used == kind && m_store.table(kind).findEncoded(tag.value) == &record);
        });
        return isFound;
    }
    bool isHeld(const CKvObjectSlot &record, const CKvObjectSlot &user) const
    {
        bool isFound = false;
        forEachNameUse(
            user,
            CKvUses::OnlyReferences,
            [](CKvTableKind, const CKvTag &) {},
            [&](const CKvTag &tag) {
                isFound = isFound
                    || (isKeepingPointer(tag.code)
                        && m_store.findRecordByHandle(tag.handle()) == &record);
            });
        return isFound && !user.isErased;
    }
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
        forEachUndrawnSlot(store, [&](CKvObjectSlot &slot) { search.visit(slot); });
        search.askEntities();
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

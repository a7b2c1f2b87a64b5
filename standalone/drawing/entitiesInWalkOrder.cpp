// SPDX-License-Identifier: MIT
#include "entitiesInWalkOrder.h"

#include "CKvDrawingStore.h"
#include "CKvEntityIndex.h"
#include "recordNames.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

namespace
{

std::optional<CKvTableKind> kindOf(const CKvDrawingStore &store, const CKvObjectSlot &record)
{
    for (const CKvTableKind kind : { CKvTableKind::Layer,
                                     CKvTableKind::Linetype,
                                     CKvTableKind::TextStyle,
                                     CKvTableKind::DimStyle }) {
        // A stand-in is no record, but entities name it all the same.
        if (record.owner && record.owner == &store.table(kind).head()) {
            return kind;
        }
    }
    return std::nullopt;
}

void sortByBlock(CKvDrawingStore &store, std::vector<CKvObjectSlot *> &entities)
{
    std::unordered_map<const CKvObjectSlot *, std::size_t> places;
    for (const CKvObjectSlot *block : store.table(CKvTableKind::Block).records()) {
        places.emplace(block, places.size());
    }
    const CKvObjectSlot *lastBlock = nullptr;
    std::size_t lastPlace = 0;
    const auto placeOf = [&](const CKvObjectSlot *entity) {
        if (entity->owner != lastBlock) {
            lastBlock = entity->owner;
            const auto found = places.find(lastBlock);
            lastPlace = found == places.end() ? places.size() : found->second;
        }
        return lastPlace;
    };
    std::vector<std::vector<CKvObjectSlot *>> byPlace(places.size() + 1);
    for (CKvObjectSlot *entity : entities) {
        byPlace[placeOf(entity)].push_back(entity);
    }
    entities.clear();
    for (const std::vector<CKvObjectSlot *> &ofBlock : byPlace) {
        entities.insert(entities.end(), ofBlock.begin(), ofBlock.end());
    }
}

} // namespace

std::vector<CKvObjectSlot *> entitiesInWalkOrder(CKvDrawingStore &store,
                                                 const CKvObjectSlot *record)
{
    const std::optional<CKvTableKind> kind =
        record && record->store == &store ? kindOf(store, *record) : std::nullopt;
    if (!kind) {
        return {};
    }
    const QString name = recordName(*record);
    const bool isMeantByNearlyAll =
        *kind == CKvTableKind::Linetype && foldedName(name) == QLatin1String("bylayer");
    CKvEntityIndex &index = store.entities();
    std::vector<CKvObjectSlot *> entities =
        isMeantByNearlyAll ? index.all() : index.users().usersOf(*kind, name);
    const CKvObjectSlot *block = nullptr;
    bool isOfOneBlock = true;
    const auto isLeftOut = [&](const CKvObjectSlot *slot) {
        // What stands in no block is met by no walk.
        if (slot->isErased || !slot->owner || slot->role != CKvObjectSlot::Role::Entity) {
            return true;
        }
        block = block ? block : slot->owner;
        isOfOneBlock = isOfOneBlock && slot->owner == block;
        return false;
    };
    entities.erase(std::remove_if(entities.begin(), entities.end(), isLeftOut), entities.end());
    if (!isOfOneBlock) {
        sortByBlock(store, entities);
    }
    return entities;
}

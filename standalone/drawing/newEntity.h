// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

class CKvDrawingStore;
class CKvObjectSlot;

/// An entity that is to come into model space.
struct CKvNewEntity {
    /// The word behind group 0.
    std::string_view type;
    /// The mark of the entity's own part (group 100), "AcDbLine" for instance; drawings of R12 and
    /// older have none.
    std::string_view subclass;
    /// As the drawing spells it.
    std::string layer;
    /// Groups of the entity's own part, values as an ASCII file has them.
    std::vector<std::pair<int, std::string>> groups;
    /// Groups behind the layer, in the part that all entities have: line style, colour, lineweight.
    std::vector<std::pair<int, std::string>> commonGroups = {};
};

/// Puts an entity behind all others of model space; reactors hear of it.
CKvObjectSlot &addToModelSpace(CKvDrawingStore &store, const CKvNewEntity &entity);

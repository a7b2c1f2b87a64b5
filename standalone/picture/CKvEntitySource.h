// SPDX-License-Identifier: MIT
#pragma once

#include "CKvEntityTags.h"

#include <vector>

class CKvDrawingStore;
class CKvTextStyles;

/// An entity to be drawn, with the vertices that belong to it and what it names.
struct CKvEntitySource {
    const CKvEntityTags &tags;
    /// VERTEX entities; empty for entities that have none.
    const std::vector<const CKvObjectSlot *> &vertices;
    CKvTextStyles &textStyles;
    /// The drawing that it is of.
    CKvDrawingStore &store;
};

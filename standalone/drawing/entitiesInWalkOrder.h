// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

class CKvDrawingStore;
class CKvObjectSlot;

/// @param record null, or of any drawing.
/// @return the entities that may name the record, block by block in the order of the block table,
/// within a block in the order of the file; empty for what is no record of this drawing that
/// entities name. Erased entities are left out.
std::vector<CKvObjectSlot *> entitiesInWalkOrder(CKvDrawingStore &store,
                                                 const CKvObjectSlot *record);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTableKind.h"
#include "CKvTag.h"

#include <functional>

class CKvDrawingStore;
class CKvObjectSlot;

/// Whether uses are told that keep no object in the drawing: layer names in extended data (1003)
/// and in layer filters.
enum class CKvUses { OnlyReferences, All };

/// Called with the table whose record is named and the tag that names it.
using CKvNameUse = std::function<void(CKvTableKind, const CKvTag &)>;
/// Called with each tag that stands before the extended data, be it a use or not.
using CKvPlainTag = std::function<void(const CKvTag &)>;

/// Tells each place where an object, or the header, uses a record by its name; not in the order of
/// the tags.
void forEachNameUse(const CKvObjectSlot &slot,
                    CKvUses uses,
                    const CKvNameUse &use,
                    const CKvPlainTag &plainTag = {});
/// Calls action for everything of the drawing that is not erased: header, records, blocks' edges
/// and entities, objects.
void forEachSlot(CKvDrawingStore &store, const std::function<void(CKvObjectSlot &)> &action);

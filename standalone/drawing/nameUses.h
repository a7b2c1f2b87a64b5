// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTableKind.h"
#include "CKvTag.h"

#include <functional>
#include <string_view>

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
/// @param type the word behind group 0.
/// @return true when such objects name records in groups that others don't have.
bool hasOwnNameUses(std::string_view type);
/// @return true when such objects name a record of that table in a group of their own.
bool namesRecordOf(std::string_view type, CKvTableKind kind);
/// @return true for the group of a handle that keeps its object: not 330 to 339, which are owners
/// and soft pointers.
bool isKeepingPointer(int code);

/// Calls action for everything of the drawing that is not erased but for what is drawn: header,
/// records, objects.
void forEachUndrawnSlot(CKvDrawingStore &store, const std::function<void(CKvObjectSlot &)> &action);

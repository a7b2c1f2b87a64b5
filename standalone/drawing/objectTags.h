// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTag.h"

#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

class CKvObjectSlot;

/// Where in an object a group is looked for.
enum class CKvTagScope {
    /// The object's own tags: not in groups in braces, not behind an embedded object (101), not in
    /// extended data (from the first 1001 on).
    Own,
    /// As Own, and no further than the part that all entities have.
    EntityPart,
};

/// The last tag of that code, since of two groups where one is meant the last one counts.
std::optional<CKvTag>
findTag(std::string_view bytes, CKvTagForm form, int code, CKvTagScope scope = CKvTagScope::Own);
std::optional<CKvTag>
findTag(const CKvObjectSlot &slot, int code, CKvTagScope scope = CKvTagScope::Own);
/// The first own tag of that code: the owner (330) stands before the data of an xrecord.
std::optional<CKvTag> findFirstTag(const CKvObjectSlot &slot, int code);
/// All own tags.
std::vector<CKvTag> ownTags(const CKvObjectSlot &slot);
/// Offset behind the last own tag.
std::size_t endOfOwnTags(const CKvObjectSlot &slot);
/// Offsets of a group in braces (102 "{NAME" to 102 "}"), the braces included.
struct CKvTagRange {
    std::size_t begin = 0;
    std::size_t end = 0;
};
std::optional<CKvTagRange> findBracedGroup(const CKvObjectSlot &slot, std::string_view name);

/// Gives a group a value, whatever was there: the last tag of the code, or a new one behind the
/// last own tag of one of the anchor codes (the first that occurs), or at the end.
/// @param value as an ASCII file has it.
void setTag(CKvObjectSlot &slot,
            int code,
            std::string_view value,
            std::initializer_list<int> anchors,
            CKvTagScope scope = CKvTagScope::Own);
/// Takes all own tags of that code out.
void dropTags(CKvObjectSlot &slot, int code);

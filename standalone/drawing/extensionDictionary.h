// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

class CKvObjectSlot;

/// Null when the object has none, or one that leads nowhere.
CKvObjectSlot *findExtensionDictionary(const CKvObjectSlot &slot);
/// Enters the handle of a dictionary in an object that has none: 102 "{ACAD_XDICTIONARY", 360, 102
/// "}".
void insertExtensionGroup(CKvObjectSlot &slot, std::uint64_t dictionary);
/// Gives an object a handle when the file gave it none.
void requireHandle(CKvObjectSlot &slot);
/// Erases an object with what hangs on it, or brings both back.
void setErased(CKvObjectSlot &slot, bool isErased);

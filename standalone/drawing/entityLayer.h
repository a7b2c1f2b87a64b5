// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

class CKvObjectSlot;

/// @return the name of an entity's layer as the file spells it, "0" when the entity names none. Of
/// an entity as it was read, and of one that was only moved, this costs no search.
std::string_view encodedLayer(const CKvObjectSlot &slot);

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

class CKvObjectSlot;

/// What is drawn in one block: its edges and its entities with their parts, in the order of the
/// file.
struct CKvBlockContents {
    /// BLOCK and ENDBLK; null for a space that has none.
    CKvObjectSlot *begin = nullptr;
    CKvObjectSlot *end = nullptr;
    std::vector<CKvObjectSlot *> entities;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvPictureItem.h"

#include <vector>

class CKvEntityTags;

/// The edge of a hatch as rings of points, and the lines of its pattern, in the hatch's own plane.
struct CKvHatchBoundary {
    std::vector<std::vector<QPointF>> rings;
    std::vector<CKvHatchFamily> families;
};

/// Reads a HATCH as far as its tags make sense.
CKvHatchBoundary readHatchBoundary(const CKvEntityTags &tags);

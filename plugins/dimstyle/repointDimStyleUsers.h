// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsError.h"

/// Moves the dimensions and leaders of a violating style to another style of the drawing, in all
/// blocks but those of external references. Other users of the style keep it.
void repointDimStyleUsers(CKvStdsErrorPtr error, OdDbObjectId newStyleId);

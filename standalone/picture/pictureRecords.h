// SPDX-License-Identifier: MIT
#pragma once

#include "CKvPictureStyle.h"

class CKvEntityTags;
class CKvObjectSlot;

/// The colour in groups 62 and 420 of the part that all entities have; by layer when there is none.
CKvPictureColor entityColor(const CKvEntityTags &tags);
/// Name, colour, lineweight and state of a layer; a stand-in is white and visible. Its line style
/// is left to the caller.
CKvPictureLayer layerRecord(const CKvObjectSlot &slot);
/// Dashes of a line style; those that would never end a step are left out.
CKvPictureLineStyle lineStyleRecord(const CKvObjectSlot &slot);

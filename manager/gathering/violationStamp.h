// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObjectId.h"

class CKvStdsError;

/// Gives the violation what its object's ignore stamp says: whether it is ignored, and by whom. An
/// object without a stamp is not ignored. A stamp without a flag counts as ignored; one without any
/// record leaves the violation as it is.
/// @throws OdError_NotThatKindOfClass for a stamp that is made of other objects.
void readViolationStamp(CKvStdsError &error);

/// Replaces the stamp of an object. A stamp is never removed: what is no longer ignored says so.
/// @param isIgnored true stores the present user's name too.
/// @throws OdError kUnsupportedByVersion when the drawing has no place for it (R12 and older).
void writeViolationStamp(OdDbObjectId objectId, bool isIgnored);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTableKind.h"
#include "dimensionVariables.h"

#include <string_view>

class CKvDrawingStore;
class CKvObjectSlot;

/// The table whose records a pointer setting names: blocks, text styles or line styles.
CKvTableKind tableOf(const CKvDimensionVariable &variable);
/// The block of that name, or of that name with an underscore before it, as the arrows of the
/// format are called. Entities are read when no record of the table has the name.
/// @return null for an empty name and for one that the drawing lacks.
CKvObjectSlot *findArrowBlock(CKvDrawingStore &store, std::string_view encodedName);
/// The record of a handle, or of a name that somebody wrote in its place.
/// @return null for what is neither, and for an erased record.
CKvObjectSlot *
findPointed(CKvDrawingStore &store, CKvTableKind kind, std::string_view handleOrName);

// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTable.h"

/// The record of a drawing that stands for a record of another drawing: the one of the same name,
/// whatever it holds, or else a clone.
/// @param table of the drawing.
/// @param sourceId a record of the same kind in another drawing, or null.
/// @return null for a null id, for what does not open, and when cloning fails.
OdDbObjectId cloneSymbolToDrawing(OdDbSymbolTablePtr table, OdDbObjectId sourceId);

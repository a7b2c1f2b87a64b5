// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDatabase.h"
#include "OdDbDimStyleTableRecord.h"

/// Gives a style of the drawing all values of a standard, and the header variables of the drawing
/// too. Arrow blocks, text style and line styles are found in the drawing by name, or brought over.
/// A value that the drawing refuses is left out.
/// @param target open for writing.
/// @param source of another drawing.
/// @throws OdError of the drawing, but for a refused value; part of the values may be written then.
void applyDimStyle(OdDbDatabasePtr drawing,
                   OdDbDimStyleTableRecordPtr target,
                   OdDbDimStyleTableRecordPtr source);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvLineTypeDefinition.h"
#include "OdDbLinetypeTableRecord.h"

#include <string>

class CKvDrawingStore;

/// The tags of a new line style record as a definition tells them, without handle and owner.
/// @throws OdError (kDefinitionUnreadable) for a text whose style the drawing lacks, and for a
/// shape, whose number stands in a font file that is not read.
std::string lineTypeTags(CKvDrawingStore &store, const CKvLineTypeDefinition &definition);
/// A new line style as a definition tells it, in no drawing yet.
/// @param store the drawing that it is for. @throws OdError as lineTypeTags.
OdDbLinetypeTableRecordPtr newLineType(CKvDrawingStore &store,
                                       const CKvLineTypeDefinition &definition);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"
#include "OdDb.h"

/// The name that users read, "0.25 mm" or "ByLayer"; empty for a lineweight that has none. Default
/// is translated.
CKvString ConvertLineweightToName(OdDb::LineWeight lineWeight);

/// Takes any part of ByBlock, ByLayer and ByDefault that tells them apart, or a whole name in
/// millimetres; letter case does not matter.
/// @param lineWeight left as it is when no lineweight has the name.
/// @return false when the text is part of several of the three words, as an empty one is.
bool ConvertNameToLineweight(CKvString name, OdDb::LineWeight &lineWeight);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"
#include "OdCmColor.h"
#include "OdDbObjectId.h"

#include <cstdint>

// The texts that drawing values are shown as. Two values of a dimension style are the same exactly
// when their texts are, so another format would change what is a violation. Lineweights have theirs
// in lineweightNames.h.

CKvString integerToText(std::int32_t value);

/// Four decimals at most, one at least ("1.0", "0.18"), with regard to the sign of what rounds to
/// zero ("-0.0"). From a million on, and for what is no number, with an exponent ("1.2346E+06").
CKvString realToText(double value);

/// "true" or "false".
CKvString booleanToText(bool value);

/// The text itself; two double quotes for an empty one, so that it shows in a cell of a table.
CKvString stringToText(const OdString &value);
/// @param utf16 ends in a zero; null counts as empty.
CKvString stringToText(const char16_t *utf16);

/// "ByLayer", "ByBlock", the name of an index ("red", "8"), or the components of a true colour
/// ("ByColor r255:g128:b0"); "???" for a colour of another method. All but ByLayer, ByBlock and the
/// names of indexes are translated.
CKvString colorToText(const OdCmColor &value);

/// The name of a table record, multiline style, plot style or material; for any other object its
/// class in angle brackets; "Null" for a null id and an erased object.
/// @throws OdError when the object can't be opened.
CKvString objectIdToText(OdDbObjectId value);

/// What a leader points to: "kMText" for 0, "kFcf" for 1, "kBlockRef" for 2, "kNoAnno" for 3; "???"
/// for any other code.
CKvString annotationTypeToText(int code);

/// "r255:g128:b0".
CKvString rgbToText(std::uint8_t red, std::uint8_t green, std::uint8_t blue);

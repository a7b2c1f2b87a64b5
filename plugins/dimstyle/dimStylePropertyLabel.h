// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"

/// The translated name of a property, "Angle precision" for "DIMADEC".
/// @param key in any letter case.
/// @return empty for an unknown key and for a property without a name.
CKvString dimStylePropertyLabel(const CKvString &key);

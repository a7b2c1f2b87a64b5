// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"
#include "OdResBuf.h"

/// A property's value as the preview shows it: texts as they are, colours by name, reals with four
/// decimals. Empty for null and for a type that no property has.
CKvString formatValue(const OdResBufPtr &value);

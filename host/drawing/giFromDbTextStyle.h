// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObjectId.h"
#include "OdGiTextStyle.h"

/// Fills a style for drawing from one of a drawing.
/// @throws OdError for a null id, OdError_NotThatKindOfClass for an object of another kind.
KV_HOST_API void giFromDbTextStyle(OdDbObjectId styleId, OdGiTextStyle &style);

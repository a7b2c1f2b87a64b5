// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchOptions.h"
#include "CKvExitStatus.h"

/// Stamps an object of a drawing as ignored, or says in its stamp that it no longer is.
/// @return Incomplete when the drawing can't be read or written or has no such object; the drawing
/// is then as it was. Otherwise Clean.
/// @throws CKvUsageError for a category that can't be checked.
CKvExitStatus commandIgnore(const CKvDrawingOptions &options);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchOptions.h"
#include "CKvExitStatus.h"

/// Lists the table records of a drawing with their values.
/// @return Incomplete when the drawing can't be read, otherwise Clean.
CKvExitStatus commandShow(const CKvDrawingOptions &options);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchOptions.h"
#include "CKvExitStatus.h"

/// The commands check and fix: works through the drawings, in this process or in several, and
/// writes the report.
/// @return Violations when any is open, Incomplete when something could not be done or there was no
/// drawing, otherwise Clean.
/// @throws CKvUsageError before anything was done.
CKvExitStatus runDrawings(const CKvBatchOptions &options);

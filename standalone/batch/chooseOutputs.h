// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingJob.h"
#include "collectDrawings.h"

#include <vector>

/// The jobs of a run: for each drawing where its repair goes, nowhere in a check or a dry run.
/// @throws CKvUsageError for two drawings with one output, an output that is another input of the
/// run or, without --in-place, the drawing itself, and a report that would replace an input.
std::vector<CKvDrawingJob> chooseOutputs(const std::vector<CKvDrawingInput> &drawings,
                                         const CKvRunOptions &options);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingJob.h"
#include "collectDrawings.h"

#include <vector>

/// The jobs of a run: for each drawing where its repair goes, nowhere in a check or a dry run. What
/// was read from a DWG file is written as DXF, under a name that says so.
/// @throws CKvUsageError for two drawings with one output and for whatever would be lost: an
/// output, a copy or a report that would replace a file that the run reads (drawings, standards,
/// map, list), an output that is a drawing's stored standard, and a report that would replace any
/// drawing. Only --in-place replaces the drawings themselves.
std::vector<CKvDrawingJob> chooseOutputs(const std::vector<CKvDrawingInput> &drawings,
                                         const CKvRunOptions &options);

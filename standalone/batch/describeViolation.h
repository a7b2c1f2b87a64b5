// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchOptions.h"
#include "CKvCategory.h"
#include "CKvDrawingReport.h"
#include "CKvStdsViolation.h"

/// A violation as the reports tell it. The plug-in must still be in the state of the pass.
CKvViolationReport describeViolation(const CKvStdsViolation &violation,
                                     const CKvCategory &category,
                                     CKvCandidateChoice candidates);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchSession.h"
#include "CKvDrawingReport.h"

/// The standards files to check a drawing against: those of the command line, or else those that
/// the drawing lists. First the ones that were found, in the order of the check, then the missing
/// ones.
/// @throws OdError for a damaged list.
std::vector<CKvStandardsFileReport> chooseStandards(CKvBatchSession &session,
                                                    OdDbDatabase &drawing);

/// Tells of each file what became of it when the plug-ins read it.
void noteReadOutcomes(CKvBatchSession &session, std::vector<CKvStandardsFileReport> &standards);

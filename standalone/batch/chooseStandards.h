// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchSession.h"
#include "CKvDrawingReport.h"

/// What a drawing is checked against.
struct CKvStandardsChoice {
    /// First the ones that were found, in the order of the check, then the missing ones.
    std::vector<CKvStandardsFileReport> files;
    /// Sentences about what the user asked for in vain.
    QStringList warnings;
};

/// The standards files to check a drawing against: those of the command line, or else those that
/// the drawing lists. A preferred file comes first if it is one of them, and else is warned of.
/// @throws OdError for a damaged list.
CKvStandardsChoice chooseStandards(CKvBatchSession &session, OdDbDatabase &drawing);

/// Tells of each file what became of it when the plug-ins read it.
void noteReadOutcomes(CKvBatchSession &session, std::vector<CKvStandardsFileReport> &standards);

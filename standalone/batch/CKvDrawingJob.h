// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchOptions.h"
#include "CKvDrawingReport.h"

class CKvBatchSession;

/// The work on one drawing of a run.
struct CKvDrawingJob {
    /// As the user named it.
    QString path;
    /// The file that a repair writes; empty for none.
    QString output;
};

/// What all drawings of a run share. Goes to the worker processes.
struct CKvJobSettings {
    /// Check or Fix.
    CKvCommandKind command = CKvCommandKind::Check;
    CKvCheckOptions check;
    CKvFixOptions fix;
};

/// Checks or repairs a drawing. Whatever fails is told in the report.
CKvDrawingReport
runJob(CKvBatchSession &session, const CKvJobSettings &settings, const CKvDrawingJob &job);

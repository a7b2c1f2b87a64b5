// SPDX-License-Identifier: MIT
#include "CKvDrawingJob.h"

#include "CKvDrawingCheck.h"
#include "CKvDrawingRepair.h"

CKvDrawingReport
runJob(CKvBatchSession &session, const CKvJobSettings &settings, const CKvDrawingJob &job)
{
    return settings.command == CKvCommandKind::Fix
        ? repairDrawing(session, settings.fix, job.path, job.output)
        : checkDrawing(session, job.path);
}

// SPDX-License-Identifier: MIT
#include "reportFailure.h"

#include "CKvDxfError.h"

#include <new>

namespace
{

CKvDrawingReport failed(const CKvDrawingReport &report, const QString &error)
{
    CKvDrawingReport only;
    only.path = report.path;
    only.status = CKvDrawingStatus::Failed;
    only.error = error;
    only.warnings = report.warnings;
    return only;
}

} // namespace

void reportFailure(CKvDrawingReport &report, const std::function<void()> &work)
{
    // The run goes on with the other drawings, so nothing may leave here.
    try {
        work();
    } catch (const std::exception &error) {
        report = failed(report, failureText(report.path, error));
    }
}

QString failureText(const QString &path, const std::exception &error)
{
    if (const auto *fileError = dynamic_cast<const CKvDxfError *>(&error)) {
        return fileError->text();
    }
    if (dynamic_cast<const std::bad_alloc *>(&error)) {
        return QStringLiteral("%1: There is not enough memory.").arg(path);
    }
    return QStringLiteral("%1: %2").arg(path, QString::fromUtf8(error.what()));
}

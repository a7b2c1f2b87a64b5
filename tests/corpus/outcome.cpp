// SPDX-License-Identifier: MIT
#include "outcome.h"

#include "CKvDrawingFile.h"
#include "CKvDxfError.h"
#include "editDrawing.h"

#include <exception>

namespace
{

void refuse(CKvOutcome &outcome, const CKvDxfError &error)
{
    outcome.error = error.reason();
    outcome.line = error.line();
}

void expectSameBytes(CKvOutcome &outcome, const OdDbDatabase &drawing, const QByteArray &bytes)
{
    if (CKvDrawingFile::isChanged(drawing) || CKvDrawingFile::toBytes(drawing) != bytes) {
        outcome.fault = QStringLiteral("saving would change the drawing");
    }
}

} // namespace

QString CKvOutcome::text() const
{
    if (!fault.isEmpty()) {
        return QStringLiteral("FAULT: ") + fault;
    }
    if (isRefused()) {
        return line > 0 ? QStringLiteral("error: line %1: %2").arg(line).arg(error)
                        : QStringLiteral("error: %1").arg(error);
    }
    return warnings.isEmpty() ? QStringLiteral("loads") : warnings.join(QLatin1Char('\n'));
}

CKvOutcome outcomeOf(const QByteArray &bytes)
{
    CKvOutcome outcome;
    try {
        OdDbDatabasePtr drawing;
        try {
            drawing = CKvDrawingFile::fromBytes(bytes);
        } catch (const CKvDxfError &error) {
            refuse(outcome, error);
            return outcome;
        }
        expectSameBytes(outcome, *drawing, bytes);
        try {
            outcome.walk = walkDrawing(*drawing);
        } catch (const CKvDxfError &error) {
            refuse(outcome, error);
            outcome.isRefusedLate = true;
        }
        outcome.warnings = CKvDrawingFile::warnings(*drawing);
        expectSameBytes(outcome, *drawing, bytes);
        if (!outcome.walk.faults.isEmpty()) {
            outcome.fault = outcome.walk.faults.first();
        }
    } catch (const std::exception &error) {
        outcome.fault = QStringLiteral("exception: ") + QString::fromUtf8(error.what());
    }
    return outcome;
}

CKvOutcome outcomeAfterEditing(const QByteArray &bytes)
{
    CKvOutcome outcome;
    try {
        const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes);
        editDrawing(*drawing);
        return outcomeOf(CKvDrawingFile::toBytes(*drawing));
    } catch (const CKvDxfError &error) {
        refuse(outcome, error);
    } catch (const std::exception &error) {
        outcome.fault = QStringLiteral("exception: ") + QString::fromUtf8(error.what());
    }
    return outcome;
}

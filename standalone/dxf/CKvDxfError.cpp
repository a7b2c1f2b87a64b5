// SPDX-License-Identifier: MIT
#include "CKvDxfError.h"

namespace
{

QString placeAndReason(const QString &file, qint64 line, const QString &reason)
{
    if (line <= 0) {
        return file.isEmpty() ? reason : QStringLiteral("%1: %2").arg(file, reason);
    }
    if (file.isEmpty()) {
        return QStringLiteral("line %1: %2").arg(QString::number(line), reason);
    }
    // Arguments together, so that a "%1" in the file's name is not taken for a place to fill.
    return QStringLiteral("%1:%2: %3").arg(file, QString::number(line), reason);
}

} // namespace

CKvDxfError::CKvDxfError(const QString &file, qint64 line, const QString &reason)
    : OdError(OdResult::kUnreadableFile, placeAndReason(file, line, reason).toStdString())
    , m_file(file)
    , m_line(line)
    , m_reason(reason)
{
}

QString CKvDxfError::text() const
{
    return placeAndReason(m_file, m_line, m_reason);
}

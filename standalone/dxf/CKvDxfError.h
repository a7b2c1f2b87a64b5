// SPDX-License-Identifier: MIT
#pragma once

#include "OdError.h"

#include <QString>

/// A file that can't be read or written: which file, where in it, and why.
class CKvDxfError : public OdError
{
public:
    /// @param file as the user named it; may be empty for bytes in memory.
    /// @param line counted from 1; 0 when the reason concerns no line.
    /// @param reason a sentence without the file's name and the line.
    CKvDxfError(const QString &file, qint64 line, const QString &reason);

    const QString &file() const { return m_file; }
    qint64 line() const { return m_line; }
    const QString &reason() const { return m_reason; }
    /// "file:line: reason"; file and line are left out when there are none.
    QString text() const;

private:
    QString m_file;
    qint64 m_line;
    QString m_reason;
};

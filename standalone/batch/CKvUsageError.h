// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stdexcept>

/// A command line that asks for what can't be: the program ends before it has done anything.
class CKvUsageError : public std::runtime_error
{
public:
    /// @param text a finished sentence.
    explicit CKvUsageError(const QString &text)
        : std::runtime_error(text.toStdString())
    {
    }
    QString text() const { return QString::fromUtf8(what()); }
};

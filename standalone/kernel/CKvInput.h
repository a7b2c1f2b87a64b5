// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Asks the user for what a running command wants to know.
class CKvInput
{
public:
    /// A word ends at a blank, a text at the end of the line.
    enum class Kind { Word, Text };

    virtual ~CKvInput() = default;
    /// Waits for the answer.
    /// @return empty for a bare Enter; none when the user breaks the command off.
    virtual std::optional<QString> ask(const QString &prompt, Kind kind) = 0;
};

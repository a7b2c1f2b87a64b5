// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchOptions.h"
#include "CKvExitStatus.h"

#include <optional>

/// What a command line leads to: options to work with, or an end at once.
struct CKvParsedCommandLine {
    /// None when the program is to end.
    std::optional<CKvBatchOptions> options;
    CKvExitStatus status = CKvExitStatus::Clean;
    /// Help or version for standard output, or, with wrong usage, what is wrong.
    QString text;
};

/// @param arguments without the program's name.
CKvParsedCommandLine parseOptions(const QStringList &arguments);

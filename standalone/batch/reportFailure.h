// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingReport.h"

#include <functional>

/// Does the work on a drawing. When it throws, the report becomes that of a drawing that failed,
/// with the reason; the other drawings of the run are none the worse.
void reportFailure(CKvDrawingReport &report, const std::function<void()> &work);

/// Why an operation on a file failed: file, line and reason as far as they are known.
/// @param path the file that was worked on.
QString failureText(const QString &path, const std::exception &error);

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Whether there is a file that looks like a drawing, by its name or by how it begins. It may be
/// damaged all the same.
bool isDrawing(const QString &path);

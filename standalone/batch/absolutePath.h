// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The path from the root, counted from the working directory, with forward slashes and without
/// "." and ".." where that leads to the same file.
QString absolutePath(const QString &path);
/// True when both paths lead to one file, or would if it existed.
bool isSameFile(const QString &a, const QString &b);

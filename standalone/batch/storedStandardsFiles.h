// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// The standards files that a drawing lists, where they are found. Nothing for a drawing that
/// can't be read.
/// @param searchPaths folders that are searched beside the drawing's own.
QStringList storedStandardsFiles(const QString &drawing, const QStringList &searchPaths);

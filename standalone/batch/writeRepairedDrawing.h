// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class CKvDrawingRepair;

/// Where the copy of a drawing goes before it is replaced.
QString backupPath(const QString &path);

/// Writes a repaired drawing. Over the drawing itself only when it changed, and after a copy
/// NAME.bak if so wanted; elsewhere always, the folder is made.
/// @param path the drawing that was read.
/// @param file the one to write.
/// @return the file that was written, empty for none.
/// @throws CKvDxfError; the old file is then as it was.
QString writeRepairedDrawing(const CKvDrawingRepair &repair,
                             const QString &path,
                             const QString &file,
                             bool keepsBackup);

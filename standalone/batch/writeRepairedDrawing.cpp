// SPDX-License-Identifier: MIT
#include "writeRepairedDrawing.h"

#include "CKvDrawingFile.h"
#include "CKvDrawingRepair.h"
#include "CKvDxfError.h"
#include "CKvFileReplacement.h"
#include "absolutePath.h"

#include <QDir>
#include <QFileInfo>

namespace
{

/// The copy is made of the bytes that were read, whatever has happened to the file since.
void writeBackup(std::string_view bytes, const QString &path)
{
    CKvFileReplacement backup(backupPath(path));
    // At once, so that nobody reads the copy who may not read the drawing.
    backup.setPermissions(QFile::permissions(path));
    backup.write(bytes);
    backup.commit();
}

void requireFolder(const QString &file)
{
    const QString folder = QFileInfo(file).absolutePath();
    if (!QDir().mkpath(folder)) {
        throw CKvDxfError(folder, 0, QStringLiteral("The folder can't be made."));
    }
}

} // namespace

QString backupPath(const QString &path)
{
    return path + QStringLiteral(".bak");
}

QString writeRepairedDrawing(const CKvDrawingRepair &repair,
                             const QString &path,
                             const QString &file,
                             bool keepsBackup)
{
    const bool isInPlace = isSameFile(path, file);
    if (isInPlace && !CKvDrawingFile::isChanged(*repair.drawing())) {
        return {};
    }
    // Before an older copy is replaced for nothing.
    CKvDrawingFile::requireReplaceable(*repair.drawing(), file);
    if (isInPlace && keepsBackup) {
        writeBackup(repair.fileBefore(), path);
    }
    requireFolder(file);
    CKvDrawingFile::save(*repair.drawing(), file);
    return file;
}

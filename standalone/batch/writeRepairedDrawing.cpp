// SPDX-License-Identifier: MIT
#include "writeRepairedDrawing.h"

#include "CKvDrawingFile.h"
#include "CKvDrawingRepair.h"
#include "CKvDxfError.h"
#include "absolutePath.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace
{

/// The copy is made of the bytes that were read, whatever has happened to the file since.
void writeBackup(std::string_view bytes, const QString &path)
{
    QSaveFile backup(path + QStringLiteral(".bak"));
    const bool isWritten = backup.open(QIODevice::WriteOnly)
        && backup.write(bytes.data(), qint64(bytes.size())) == qint64(bytes.size())
        && backup.flush() && backup.commit();
    if (!isWritten) {
        throw CKvDxfError(backup.fileName(), 0, backup.errorString() + QLatin1Char('.'));
    }
    backup.setPermissions(QFile::permissions(path));
}

void requireFolder(const QString &file)
{
    const QString folder = QFileInfo(file).absolutePath();
    if (!QDir().mkpath(folder)) {
        throw CKvDxfError(folder, 0, QStringLiteral("The folder can't be made."));
    }
}

} // namespace

QString writeRepairedDrawing(const CKvDrawingRepair &repair,
                             const QString &path,
                             const QString &file,
                             bool keepsBackup)
{
    const bool isInPlace = isSameFile(path, file);
    if (isInPlace && !CKvDrawingFile::isChanged(*repair.drawing())) {
        return {};
    }
    if (isInPlace && keepsBackup) {
        writeBackup(repair.before(), path);
    }
    requireFolder(file);
    CKvDrawingFile::save(*repair.drawing(), file);
    return file;
}

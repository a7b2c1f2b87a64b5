// SPDX-License-Identifier: MIT
#include "findSupportFile.h"

#include "CKvDatabase.h"
#include "executableFolder.h"

#include <QDir>
#include <QFileInfo>

namespace
{

/// Where mm.lin and inch.lin are: beside the program, where it is installed, in the sources.
QStringList supportFolders()
{
    QStringList folders;
    const QString beside = executableFolder();
    if (!beside.isEmpty()) {
        folders << beside << beside + QLatin1String("/support")
                << beside + QLatin1String("/../share/kvstandards");
    }
    return folders << QStringLiteral(KV_SUPPORT_FOLDER);
}

/// Empty for a drawing that has no file.
QString folderOf(const OdDbDatabase &database)
{
    // A document's drawing may have been saved elsewhere since it was read.
    const bool isOfDocument = database.isKindOf(CKvDatabase::desc());
    const QString file = isOfDocument
        ? static_cast<const CKvDatabase &>(database).drawingFileName().toQString()
        : database.getFilename().toQString();
    return file.isEmpty() ? QString() : QFileInfo(file).absolutePath();
}

/// Full path of the file in the first of the folders that has it; empty when none has.
QString searched(const QString &name, const QStringList &folders)
{
    for (const QString &folder : folders) {
        const QFileInfo file(QDir(folder), name);
        if (file.isFile()) {
            return QDir::cleanPath(file.absoluteFilePath());
        }
    }
    return {};
}

} // namespace

QString
findSupportFile(const QString &name, const OdDbDatabase *database, const QStringList &searchPaths)
{
    if (name.isEmpty()) {
        return {};
    }
    QStringList folders;
    if (database && !folderOf(*database).isEmpty()) {
        folders << folderOf(*database);
    }
    const QString found = searched(name, folders + searchPaths);
    // Where the program stands is asked only when it matters: the support files come last.
    return found.isEmpty() ? searched(name, supportFolders()) : found;
}

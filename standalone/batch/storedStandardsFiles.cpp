// SPDX-License-Identifier: MIT
#include "storedStandardsFiles.h"

#include "CKvDrawingFile.h"
#include "CKvStandaloneServices.h"
#include "CKvStandardsFiles.h"

QStringList storedStandardsFiles(const QString &drawing, const QStringList &searchPaths)
{
    QStringList files;
    // Whoever works on the drawing later tells what is wrong with it.
    try {
        CKvStandaloneServices services;
        services.setSearchPaths(searchPaths);
        const OdDbDatabasePtr database =
            CKvDrawingFile::open(drawing, CKvFileImage::Holding::Mapped);
        CKvStandardsFiles stored;
        stored.load(*database, services);
        for (const CKvString &path : stored.paths()) {
            files << path.toQString();
        }
    } catch (const OdError &) {
        files.clear();
    }
    return files;
}

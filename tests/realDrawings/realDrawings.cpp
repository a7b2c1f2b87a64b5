// SPDX-License-Identifier: MIT
#include "realDrawings.h"

#include <QDir>
#include <QDirIterator>

namespace
{

QString otherPeoplesFolder()
{
    const QString named = qEnvironmentVariable("KV_REAL_DRAWINGS");
    return named.isEmpty() ? QStringLiteral(KV_REAL_DRAWINGS_FOLDER) : named;
}

QStringList drawingsBelow(const QString &folder)
{
    const QStringList endings { QStringLiteral("*.dxf"),
                                QStringLiteral("*.dxfb"),
                                QStringLiteral("*.dws") };
    QStringList paths;
    QDirIterator walk(folder, endings, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        paths.append(walk.next());
    }
    paths.sort();
    return paths;
}

} // namespace

QStringList realDrawings()
{
    return drawingsBelow(QStringLiteral(KV_SAMPLES_FOLDER)) + drawingsBelow(otherPeoplesFolder());
}

bool hasOtherPeoplesDrawings()
{
    return QDir(otherPeoplesFolder()).exists();
}

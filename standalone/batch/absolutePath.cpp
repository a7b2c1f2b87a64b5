// SPDX-License-Identifier: MIT
#include "absolutePath.h"

#include <QDir>
#include <QFileInfo>

QString absolutePath(const QString &path)
{
    const QString forward = QDir::fromNativeSeparators(path);
    const QString full =
        QDir::isAbsolutePath(forward) ? forward : QDir::currentPath() + QLatin1Char('/') + forward;
    const QString clean = QDir::cleanPath(full);
    // Behind a symbolic link ".." leads elsewhere than the text says.
    const QString target = QFileInfo(full).canonicalFilePath();
    return target == QFileInfo(clean).canonicalFilePath() ? clean : full;
}

bool isSameFile(const QString &a, const QString &b)
{
    const QString absoluteA = absolutePath(a);
    const QString absoluteB = absolutePath(b);
    const QString targetA = QFileInfo(absoluteA).canonicalFilePath();
    return absoluteA == absoluteB
        || (!targetA.isEmpty() && targetA == QFileInfo(absoluteB).canonicalFilePath());
}

// SPDX-License-Identifier: MIT
#include "corpusFiles.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>

namespace
{

QStringList folders()
{
    return { QStringLiteral(KV_SAMPLES_FOLDER), QStringLiteral(KV_SHARED_FOLDER) };
}

/// By its name; beside the drawings stand their descriptions and the programs that made them.
bool isDrawing(const QString &path)
{
    static constexpr std::array<const char *, 4> kEnds = { ".dxf", ".dws", ".dwg", ".dxfb" };
    return std::any_of(kEnds.begin(), kEnds.end(), [&](const char *end) {
        return path.endsWith(QLatin1String(end), Qt::CaseInsensitive);
    });
}

QStringList drawingsBelow(const QString &folder)
{
    QStringList paths;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (isDrawing(path)) {
            paths.append(path);
        }
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::vector<CKvCorpusFile> readAll()
{
    std::vector<CKvCorpusFile> drawings;
    for (const QString &folder : folders()) {
        for (const QString &path : drawingsBelow(folder)) {
            QFile file(path);
            if (file.open(QIODevice::ReadOnly)) {
                drawings.push_back({ path.mid(folder.size() + 1), path, file.readAll() });
            }
        }
    }
    return drawings;
}

} // namespace

bool CKvCorpusFile::isAscii() const
{
    return !bytes.startsWith("AutoCAD Binary DXF") && !bytes.startsWith("AC10");
}

int CKvCorpusFile::version() const
{
    if (!isAscii()) {
        return 0;
    }
    static const QRegularExpression s_version(QStringLiteral("\\$ACADVER\\s+1\\s+AC([0-9]{4})\\s"));
    return s_version.match(QString::fromLatin1(bytes.left(20000))).captured(1).toInt();
}

const std::vector<CKvCorpusFile> &corpusFiles()
{
    static const std::vector<CKvCorpusFile> s_drawings = readAll();
    return s_drawings;
}

QString missingCorpusFolders()
{
    QStringList missing;
    for (const QString &folder : folders()) {
        if (drawingsBelow(folder).isEmpty()) {
            missing.append(QStringLiteral("There are no drawings in %1.").arg(folder));
        }
    }
    return missing.join(QLatin1Char('\n'));
}

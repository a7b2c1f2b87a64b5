// SPDX-License-Identifier: MIT
#include "CKvBenchFiles.h"

#include <QFile>

#include <cstring>

CKvBenchFiles &CKvBenchFiles::ofThisRun()
{
    static CKvBenchFiles s_files;
    return s_files;
}

QString CKvBenchFiles::drawingOf(int megabytes)
{
    CKvBenchDrawing content;
    content.entities = CKvBenchDrawing::entitiesForMegabytes(megabytes);
    return drawing(QStringLiteral("size-%1.dxf").arg(megabytes), content);
}

QString CKvBenchFiles::standardsOf(int layers)
{
    CKvBenchDrawing content;
    content.layers = layers;
    content.color = 3;
    return drawing(QStringLiteral("standards-%1.dxf").arg(layers), content);
}

QString CKvBenchFiles::drawing(const QString &name, const CKvBenchDrawing &content)
{
    QString file = path(name);
    if (!QFile::exists(file) && !content.write(file)) {
        qFatal("can't write %s", qPrintable(file));
    }
    return file;
}

qint64 countLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray bytes = file.readAll();
    qint64 lines = 0;
    const char *at = bytes.constData();
    const char *const end = at + bytes.size();
    while ((at = static_cast<const char *>(std::memchr(at, '\n', std::size_t(end - at))))
           != nullptr) {
        ++lines;
        ++at;
    }
    return lines;
}

// SPDX-License-Identifier: MIT
#include "collectDrawings.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace
{

void addFolder(const QString &folder, std::vector<CKvDrawingInput> &drawings)
{
    // Absolute, since a path that leads up first can't be made relative to itself otherwise.
    const QDir root(QDir(folder).absolutePath());
    QStringList found;
    QDirIterator walk(root.path(),
                      { QStringLiteral("*.dxf"), QStringLiteral("*.dws") },
                      QDir::Files,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        found << root.relativeFilePath(walk.next());
    }
    found.sort();
    const QString prefix = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    for (const QString &relativePath : found) {
        drawings.push_back({ prefix + relativePath, relativePath });
    }
}

void addInput(const QString &input, std::vector<CKvDrawingInput> &drawings)
{
    const QString path = QDir::fromNativeSeparators(input);
    if (QFileInfo(path).isDir()) {
        addFolder(path, drawings);
    } else {
        drawings.push_back({ path, QFileInfo(path).fileName() });
    }
}

/// @param error receives a sentence when the list can't be read.
QStringList listedInputs(const QString &filesFrom, QString &error)
{
    QFile file(filesFrom);
    const bool isOpen = filesFrom == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                        : file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        error = QStringLiteral("The list %1 can't be read: %2.").arg(filesFrom, file.errorString());
        return {};
    }
    QString text = QString::fromUtf8(file.readAll());
    if (text.startsWith(QChar(QChar::ByteOrderMark))) {
        text.remove(0, 1);
    }
    QStringList inputs;
    for (QString &line : text.split(QLatin1Char('\n'))) {
        if (line.endsWith(QLatin1Char('\r'))) {
            line.chop(1);
        }
        if (!line.isEmpty()) {
            inputs << line;
        }
    }
    return inputs;
}

} // namespace

CKvDrawingList collectDrawings(const QStringList &inputs, const QString &filesFrom)
{
    CKvDrawingList list;
    for (const QString &input : inputs) {
        addInput(input, list.drawings);
    }
    if (!filesFrom.isEmpty()) {
        QString error;
        for (const QString &input : listedInputs(filesFrom, error)) {
            addInput(input, list.drawings);
        }
        if (!error.isEmpty()) {
            list.errors << error;
        }
    }
    return list;
}

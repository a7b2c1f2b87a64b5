// SPDX-License-Identifier: MIT
#include "collectDrawings.h"

#include "CKvFolderWalk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace
{

void addInput(const QString &input, const QString &outputFolder, CKvDrawingList &list)
{
    const QString path = QDir::fromNativeSeparators(input);
    if (QFileInfo(path).isDir()) {
        CKvFolderWalk(path, outputFolder).addTo(list);
    } else {
        list.drawings.push_back({ path, QFileInfo(path).fileName() });
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
    // With its length: without it the text would end at the first zero.
    const QByteArray bytes = file.readAll();
    QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    if (text.startsWith(QChar(QChar::ByteOrderMark))) {
        text.remove(0, 1);
    }
    // No path has a zero in it: a list with zeros comes from "find -print0".
    const QChar zero(QChar::Null);
    QStringList inputs;
    for (QString &line : text.split(text.contains(zero) ? zero : QChar(QChar::LineFeed))) {
        if (line.endsWith(QLatin1Char('\r'))) {
            line.chop(1);
        }
        if (!line.trimmed().isEmpty()) {
            inputs << line;
        }
    }
    return inputs;
}

} // namespace

CKvDrawingList
collectDrawings(const QStringList &inputs, const QString &filesFrom, const QString &outputFolder)
{
    CKvDrawingList list;
    for (const QString &input : inputs) {
        addInput(input, outputFolder, list);
    }
    if (!filesFrom.isEmpty()) {
        QString error;
        for (const QString &input : listedInputs(filesFrom, error)) {
            addInput(input, outputFolder, list);
        }
        if (!error.isEmpty()) {
            list.errors << error;
        }
    }
    return list;
}

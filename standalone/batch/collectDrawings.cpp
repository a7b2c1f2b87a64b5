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

// SPDX-License-Identifier: MIT
#include "dwgConversion.h"

#include "CKvDxfError.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace
{

/// A program that hangs must not hang the check of all other drawings.
constexpr int kMostTimeMs = 5 * 60 * 1000;

[[noreturn]] void refuse(const QString &path, const QString &reason)
{
    throw CKvDxfError(path,
                      0,
                      QStringLiteral("This is a DWG file that dwg2dxf can't read: %1. Save it as "
                                     "DXF and try again.")
                          .arg(reason));
}

/// The last line of what a program complains of tells most.
QString complaint(const QByteArray &output)
{
    const QByteArray text = output.trimmed();
    const QString line = QString::fromLocal8Bit(text.mid(text.lastIndexOf('\n') + 1)).trimmed();
    return line.isEmpty() ? QStringLiteral("it gives no reason") : line;
}

} // namespace

bool isDwg(std::string_view bytes)
{
    const std::string_view mark = bytes.substr(0, 4);
    return mark == "AC10" || mark == "AC1." || mark == "AC2.";
}

bool isDwgFile(const QString &path)
{
    constexpr qint64 kEnough = 16;
    QFile file(path);
    // Opening a pipe would wait for somebody to write into it.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray begin = file.read(kEnough);
    return isDwg({ begin.constData(), std::size_t(begin.size()) });
}

std::optional<QByteArray> convertedDwg(const QString &path)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("dwg2dxf"));
    if (program.isEmpty()) {
        return std::nullopt;
    }
    const QTemporaryDir folder;
    const QString output = folder.filePath(QStringLiteral("drawing.dxf"));
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(
        program,
        { QStringLiteral("-y"), QStringLiteral("-o"), output, QFileInfo(path).absoluteFilePath() });
    if (!process.waitForFinished(kMostTimeMs)) {
        process.kill();
        process.waitForFinished();
        refuse(path, QStringLiteral("it does not end"));
    }
    QFile file(output);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0
        || !file.open(QIODevice::ReadOnly)) {
        refuse(path, complaint(process.readAllStandardError()));
    }
    return file.readAll();
}

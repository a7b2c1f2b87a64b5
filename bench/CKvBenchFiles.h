// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBenchDrawing.h"

#include <QTemporaryDir>

#include <map>

/// The files that a run works on, made when a row first asks for them, gone at its end.
class CKvBenchFiles
{
public:
    static CKvBenchFiles &ofThisRun();

    /// A drawing of about that size, its lines spread over 50 layers.
    QString drawingOf(int megabytes);
    /// A drawing with that many layers of colour 3 besides layer 0, and nothing drawn.
    QString standardsOf(int layers);
    /// @param name the same for the same drawing.
    QString drawing(const QString &name, const CKvBenchDrawing &content);
    /// Where a row may write.
    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Processor time to read the file and find each of its line ends, the shortest of five;
    /// measured once a run and file.
    double floorSeconds(const QString &path);

private:
    QTemporaryDir m_folder;
    std::map<QString, double> m_floors;
};

/// Reads the file and finds each line end with memchr.
qint64 countLines(const QString &path);

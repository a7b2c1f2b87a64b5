// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBenchDrawing.h"

#include <QTemporaryDir>

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

private:
    QTemporaryDir m_folder;
};

/// Reads the file and finds each line end with memchr.
qint64 countLines(const QString &path);

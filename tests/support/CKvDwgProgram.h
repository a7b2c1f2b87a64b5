// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// While it lives, the program dwg2dxf on the path of this process makes one DXF file of every DWG
/// file.
///
///     drawing.saveTo(folder.filePath("made.dxf"));
///     const CKvDwgProgram program(folder.filePath("made.dxf"));
///     CKvDwgProgram::writeDwg(folder.filePath("plan.dwg"));
class CKvDwgProgram
{
public:
    /// @param made what it makes; must be there when the program runs.
    explicit CKvDwgProgram(const QString &made);
    ~CKvDwgProgram();
    CKvDwgProgram(const CKvDwgProgram &) = delete;
    CKvDwgProgram &operator=(const CKvDwgProgram &) = delete;

    /// A file that is known for DWG and that nothing else can read.
    static void writeDwg(const QString &path);
    /// True for a file that is as writeDwg left it.
    static bool isAsWritten(const QString &path);

private:
    QTemporaryDir m_folder;
    QByteArray m_pathBefore;
};

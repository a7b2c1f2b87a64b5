// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/// A drawing to try things on.
struct CKvCorpusFile {
    /// Folder and file, as a table shows it.
    QString name;
    QString path;
    QByteArray bytes;

    bool isAscii() const;
    /// 1015 for $ACADVER AC1015; 0 when there is none or the drawing is not ASCII.
    int version() const;
};

/// The drawings of samples/ and of the shared folder, in the order of their names; empty when
/// neither is there.
const std::vector<CKvCorpusFile> &corpusFiles();

/// Which folders were searched and lack drawings, one a line; empty when both have some.
QString missingCorpusFolders();

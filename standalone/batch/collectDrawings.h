// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// A drawing of a run.
struct CKvDrawingInput {
    /// As the user named it, or below the folder that the user named.
    QString path;
    /// Where it goes below an output folder: its path below the named folder, or its bare name.
    QString relativePath;
};

/// The drawings of a run, and what could not be had.
struct CKvDrawingList {
    std::vector<CKvDrawingInput> drawings;
    /// Sentences about lists that can't be read.
    QStringList errors;
};

/// Named drawings in the order given; for a folder every .dxf and .dws below it in the order of
/// their names. What does not exist is taken for a drawing: it fails when it is opened.
/// @param filesFrom file with one drawing or folder a line, "-" for standard input, empty for none.
CKvDrawingList collectDrawings(const QStringList &inputs, const QString &filesFrom);

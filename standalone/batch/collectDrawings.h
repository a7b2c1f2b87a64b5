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
    /// Sentences about what was asked for and can't be had: folders and lists that can't be read,
    /// folders without a drawing, names that can't be read.
    QStringList errors;
    /// Sentences about what was passed over on purpose.
    QStringList notes;
};

/// Named drawings in the order given; for a folder every .dxf and .dws below it in the order of
/// their names, hidden ones aside. What does not exist is taken for a drawing: it fails when it is
/// opened. Links to folders are not followed, except when they are named.
/// @param filesFrom file with one drawing or folder a line, "-" for standard input, empty for none.
/// @param outputFolder folder that the run writes to, passed over where it stands below a named
/// folder; empty for none.
CKvDrawingList collectDrawings(const QStringList &inputs,
                               const QString &filesFrom,
                               const QString &outputFolder = QString());

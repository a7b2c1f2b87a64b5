// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/// One row of a repair map: the candidate to take for a violation that recommends none.
struct CKvRepairMapRow {
    /// Word of the category.
    QString category;
    /// Name of the object in violation.
    QString name;
    /// Name of the candidate, exactly.
    QString target;
    /// The candidate's standards file; empty for any.
    QString standardsFile;
    /// Line in the file, counted from 1.
    int line = 0;

    /// Whether the row means this standards file: by its path or, without a folder, its bare name.
    /// @param path absolute, with forward slashes.
    bool namesFile(const QString &path) const;
};

using CKvRepairMap = std::vector<CKvRepairMapRow>;

/// @param bytes CSV in UTF-8 with a header row category,name,target and, if wanted, standards file.
/// @param fileName for the messages.
/// @throws CKvUsageError that names the line for what is no such table.
CKvRepairMap parseRepairMap(const QByteArray &bytes, const QString &fileName);
/// @throws CKvUsageError also when the file can't be read.
CKvRepairMap readRepairMap(const QString &path);

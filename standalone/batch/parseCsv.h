// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// A row of a table of comma separated values.
struct CKvCsvRow {
    QStringList cells;
    /// Where the row begins, counted from 1.
    int line = 0;
};

/// Cells may be quoted; a quoted one may hold commas, line ends and, doubled, quotes. Empty lines
/// are no rows. What stands between a closing quote and the next comma is part of the cell.
std::vector<CKvCsvRow> parseCsv(const QString &text);

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A drawing with nothing drawn and as many records of each category as are wanted, for audits.
/// The same numbers give the same bytes.
struct CKvBenchRecords {
    /// Line styles, layers, text styles and dimension styles, each named and so on.
    int count = 1000;
    /// What the records are compared by: two drawings of two variants agree in none.
    int variant = 1;

    /// Writes the drawing as R2000 in ASCII.
    /// @return false when the file can't be written.
    bool write(const QString &path) const;
};

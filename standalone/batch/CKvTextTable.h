// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

enum class CKvTextStyle { Plain, Bold, Faint, Red, Green, Yellow };

/// The text in that style, or as it is.
/// @param isColored false for output that is no terminal.
QString styled(const QString &text, CKvTextStyle style, bool isColored);

/// Rows of cells for a terminal. A column is as wide as its widest cell, within reason; the last
/// cell of a row may be of any width.
class CKvTextTable
{
public:
    struct Cell {
        QString text;
        CKvTextStyle style = CKvTextStyle::Plain;
    };
    using Row = std::vector<Cell>;

    void add(Row row) { m_rows.push_back(std::move(row)); }
    bool isEmpty() const { return m_rows.empty(); }
    /// A line for each row, with a line end and no blanks before it.
    /// @param indent blanks before each row.
    QString toText(int indent, bool isColored) const;

private:
    std::vector<int> columnWidths() const;

    std::vector<Row> m_rows;
};

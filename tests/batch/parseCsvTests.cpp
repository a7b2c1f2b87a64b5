// SPDX-License-Identifier: MIT
#include "parseCsv.h"

#include <gtest/gtest.h>

namespace
{

/// "1: [a][b]" a row.
std::string parsed(const char *text)
{
    std::string lines;
    for (const CKvCsvRow &row : parseCsv(QString::fromUtf8(text))) {
        lines += std::to_string(row.line) + ": ";
        for (const QString &cell : row.cells) {
            lines += "[" + cell.toStdString() + "]";
        }
        lines += "\n";
    }
    return lines;
}

} // namespace

TEST(Csv, PlainCells)
{
    EXPECT_EQ(parsed("a,b\nc,,d\n"), "1: [a][b]\n2: [c][][d]\n");
    EXPECT_EQ(parsed("a,b"), "1: [a][b]\n");
    EXPECT_EQ(parsed("a\r\nb\r\n"), "1: [a]\n2: [b]\n");
    EXPECT_EQ(parsed(" a , b "), "1: [ a ][ b ]\n");
}

TEST(Csv, QuotedCells)
{
    EXPECT_EQ(parsed("\"a,b\",\"c\"\"d\"\n"), "1: [a,b][c\"d]\n");
    EXPECT_EQ(parsed("\"a\nb\",c\nd"), "1: [a\nb][c]\n3: [d]\n");
    EXPECT_EQ(parsed("\"\"\n\"\",\"\""), "1: []\n2: [][]\n");
    EXPECT_EQ(parsed("a\"b\"c"), "1: [a\"b\"c]\n");
    EXPECT_EQ(parsed("\"never closed,\nb"), "1: [never closed,\nb]\n");
}

TEST(Csv, EmptyLinesAreNoRowsButCount)
{
    EXPECT_EQ(parsed(""), "");
    EXPECT_EQ(parsed("\n\r\n\na\n\n"), "4: [a]\n");
    EXPECT_EQ(parsed(",\n"), "1: [][]\n");
}

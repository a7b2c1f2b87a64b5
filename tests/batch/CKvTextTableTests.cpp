// SPDX-License-Identifier: MIT
#include "CKvTextTable.h"

#include <gtest/gtest.h>

namespace
{

CKvTextTable::Row row(std::initializer_list<const char *> cells)
{
    CKvTextTable::Row row;
    for (const char *cell : cells) {
        row.push_back({ QString::fromUtf8(cell), CKvTextStyle::Plain });
    }
    return row;
}

} // namespace

TEST(TextTable, ColumnsAreAsWideAsTheirWidestCell)
{
    CKvTextTable table;
    table.add(row({ "a", "bbb", "c" }));
    table.add(row({ "壁壁", "b", "c" }));

    EXPECT_EQ(table.toText(2, false).toStdString(), "  a     bbb  c\n  壁壁  b    c\n");
}

TEST(TextTable, TheLastCellOfARowPushesNothingAside)
{
    CKvTextTable table;
    table.add(row({ "a", "a long sentence that ends the row" }));
    table.add(row({ "a", "b", "c" }));

    EXPECT_EQ(table.toText(0, false).toStdString(),
              "a  a long sentence that ends the row\na  b  c\n");
}

TEST(TextTable, AVeryLongCellPushesItsOwnRowAsideOnly)
{
    CKvTextTable table;
    const std::string longCell(41, 'x');
    table.add(row({ longCell.c_str(), "b" }));
    table.add(row({ "a", "b" }));

    EXPECT_EQ(table.toText(0, false).toStdString(), longCell + "  b\na  b\n");
}

TEST(TextTable, NoBlanksAtTheEndOfALine)
{
    CKvTextTable table;
    table.add(row({ "a", "" }));
    table.add(row({ "bbb", "c" }));

    EXPECT_EQ(table.toText(0, false).toStdString(), "a\nbbb  c\n");
}

TEST(TextTable, ColoursDoNotCountAsWidth)
{
    CKvTextTable table;
    table.add({ { QStringLiteral("a"), CKvTextStyle::Red },
                { QStringLiteral("b"), CKvTextStyle::Plain } });
    table.add(row({ "ccc", "d" }));

    EXPECT_EQ(table.toText(0, true).toStdString(), "\x1b[31ma\x1b[0m    b\nccc  d\n");
}

TEST(TextTable, AnEmptyTableIsNoText)
{
    EXPECT_EQ(CKvTextTable().toText(2, true), QString());
}

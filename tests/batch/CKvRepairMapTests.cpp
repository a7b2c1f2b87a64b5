// SPDX-License-Identifier: MIT
#include "CKvRepairMap.h"

#include "CKvUsageError.h"
#include "absolutePath.h"

#include <gtest/gtest.h>

namespace
{

std::string parsed(const QByteArray &map)
{
    std::string lines;
    for (const CKvRepairMapRow &row : parseRepairMap(map, QStringLiteral("map.csv"))) {
        lines += std::to_string(row.line) + ": " + row.category.toStdString() + " <"
            + row.name.toStdString() + "> <" + row.target.toStdString() + "> <"
            + row.standardsFile.toStdString() + ">\n";
    }
    return lines;
}

} // namespace

TEST(RepairMap, HasThreeOrFourColumns)
{
    EXPECT_EQ(parsed("category,name,target\nlayers,A,B\n"), "2: layers <A> <B> <>\n");
    EXPECT_EQ(parsed("category,name,target,standards file\nlayers,A,B,std.dxf\nlayers,C,D\n"),
              "2: layers <A> <B> <std.dxf>\n3: layers <C> <D> <>\n");
    EXPECT_EQ(parsed("Category, Name, Target\nlayers,A,B\n"), "2: layers <A> <B> <>\n");
    EXPECT_EQ(parsed("category,name,target\n"), "");
}

TEST(RepairMap, NamesKeepTheirBlanks)
{
    EXPECT_EQ(parsed("category,name,target\n layers , A,B \n"), "2: layers < A> <B > <>\n");
}

TEST(RepairMap, AByteOrderMarkIsNoPartOfTheHeader)
{
    EXPECT_EQ(parsed("\xEF\xBB\xBF"
                     "category,name,target\nlayers,Tür,B\n"),
              "2: layers <Tür> <B> <>\n");
}

TEST(RepairMap, WhatIsNoMapThrows)
{
    EXPECT_THROW(parsed(""), CKvUsageError);
    EXPECT_THROW(parsed("name,category,target\n"), CKvUsageError);
    EXPECT_THROW(parsed("category,name\n"), CKvUsageError);
    EXPECT_THROW(parsed("category,name,target,file\n"), CKvUsageError);
    EXPECT_THROW(parsed("category,name,target\nlayers,A,B,C,D\n"), CKvUsageError);
    EXPECT_THROW(parsed("category,name,target\nwalls,A,B\n"), CKvUsageError);
}

TEST(RepairMap, ARowNamesAFileByItsPathOrItsBareName)
{
    CKvRepairMapRow row;
    const QString path = absolutePath(QStringLiteral("std/office.dxf"));
    EXPECT_TRUE(row.namesFile(path));

    for (const char *file :
         { "office.dxf", "std/office.dxf", "std\\office.dxf", "./std/../std/office.dxf" }) {
        row.standardsFile = QString::fromUtf8(file);
        EXPECT_TRUE(row.namesFile(path)) << file;
    }
    for (const char *file : { "Office.dxf", "other/office.dxf", "office", "std" }) {
        row.standardsFile = QString::fromUtf8(file);
        EXPECT_FALSE(row.namesFile(path)) << file;
    }
}

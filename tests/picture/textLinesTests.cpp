// SPDX-License-Identifier: MIT
#include "textLines.h"

#include "list.h"

#include <gtest/gtest.h>

namespace
{

QString plain(const char *text)
{
    return plainText(QString::fromUtf8(text));
}

QStringList lines(const char *text)
{
    return plainLines(QString::fromUtf8(text));
}

} // namespace

TEST(TextLines, PercentCodesBecomeTheirCharacters)
{
    EXPECT_EQ(plain("%%c20 %%p0.1 45%%d"), QString::fromUtf8("⌀20 ±0.1 45°"));
    EXPECT_EQ(plain("%%C20"), QString::fromUtf8("⌀20"));
    EXPECT_EQ(plain("100%%%"), QString::fromUtf8("100%"));
    EXPECT_EQ(plain("%%065"), QString::fromUtf8("A"));
    EXPECT_EQ(plain("%%uTitle%%u"), QString::fromUtf8("Title"));
    EXPECT_EQ(plain("50% of 2"), QString::fromUtf8("50% of 2"));
    EXPECT_EQ(plain("ends in %%"), QString::fromUtf8("ends in %%"));
}

TEST(TextLines, ParagraphsBecomeLines)
{
    EXPECT_EQ(lines("one\\Ptwo"), list({ "one", "two" }));
    EXPECT_EQ(lines("one^Jtwo"), list({ "one", "two" }));
    EXPECT_EQ(lines(""), list({ "" }));
}

TEST(TextLines, CodesForLooksGo)
{
    EXPECT_EQ(lines("{\\fArial|b0|i0|c0|p34;plain} {\\H1.5x;tall} \\Lline\\l \\C1;red"),
              list({ "plain tall line red" }));
    EXPECT_EQ(lines("\\A1;\\pxqc;middle"), list({ "middle" }));
}

TEST(TextLines, StacksAreWrittenInALine)
{
    EXPECT_EQ(lines("\\S1/2; inch"), list({ "1/2 inch" }));
    EXPECT_EQ(lines("\\S+0.1^-0.2;"), list({ "+0.1 -0.2" }));
    EXPECT_EQ(lines("\\S3#4;"), list({ "3/4" }));
}

TEST(TextLines, BracesAndBackslashesCanBeMeant)
{
    EXPECT_EQ(lines("\\{a\\} \\\\ b"), list({ "{a} \\ b" }));
    EXPECT_EQ(lines("a code without end \\H2.5"), list({ "a code without end " }));
    EXPECT_EQ(lines("ends in \\"), list({ "ends in \\" }));
}

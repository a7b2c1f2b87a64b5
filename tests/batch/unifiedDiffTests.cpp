// SPDX-License-Identifier: MIT
#include "unifiedDiff.h"

#include <gtest/gtest.h>

namespace
{

std::string diff(std::string_view before, std::string_view after, const char *name = "a.dxf")
{
    return unifiedDiff(before, after, QString::fromUtf8(name)).toStdString();
}

} // namespace

TEST(UnifiedDiff, IsEmptyForEqualTexts)
{
    EXPECT_EQ(diff("a\n", "a\n"), "");
}

TEST(UnifiedDiff, ShowsThreeLinesAroundAChange)
{
    EXPECT_EQ(diff("1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\nX\n6\n7\n8\n9\n"),
              "--- a.dxf\n+++ a.dxf\n@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+X\n 6\n 7\n 8\n");
}

TEST(UnifiedDiff, ChangesThatShareContextShareAHunk)
{
    EXPECT_EQ(diff("a\n1\n2\n3\n4\n5\n6\nb\n", "A\n1\n2\n3\n4\n5\n6\nB\n"),
              "--- a.dxf\n+++ a.dxf\n@@ -1,8 +1,8 @@\n-a\n+A\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n+B\n");
    EXPECT_EQ(diff("a\n1\n2\n3\n4\n5\n6\n7\nb\n", "A\n1\n2\n3\n4\n5\n6\n7\nB\n"),
              "--- a.dxf\n+++ a.dxf\n@@ -1,4 +1,4 @@\n-a\n+A\n 1\n 2\n 3\n@@ -6,4 +6,4 @@\n 5\n "
              "6\n 7\n-b\n+B\n");
}

TEST(UnifiedDiff, NumbersFollowTheUsualRules)
{
    EXPECT_EQ(diff("", "a\n"), "--- a.dxf\n+++ a.dxf\n@@ -0,0 +1 @@\n+a\n");
    EXPECT_EQ(diff("a\n", ""), "--- a.dxf\n+++ a.dxf\n@@ -1 +0,0 @@\n-a\n");
}

TEST(UnifiedDiff, TellsOfAMissingLineEnd)
{
    EXPECT_EQ(diff("a\nb", "a\nc\n"),
              "--- a.dxf\n+++ a.dxf\n@@ -1,2 +1,2 @@\n a\n-b\n\\ No newline at end of file\n+c\n");
}

TEST(UnifiedDiff, KeepsCarriageReturns)
{
    EXPECT_EQ(diff("a\r\nb\r\n", "a\r\nc\r\n"),
              "--- a.dxf\n+++ a.dxf\n@@ -1,2 +1,2 @@\n a\r\n-b\r\n+c\r\n");
}

TEST(UnifiedDiff, ANameWithBlanksIsEnded)
{
    EXPECT_EQ(diff("a\n", "", "my plan.dxf"),
              "--- my plan.dxf\t\n+++ my plan.dxf\t\n@@ -1 +0,0 @@\n-a\n");
}

TEST(UnifiedDiff, BinaryFilesAreOnlyToldToDiffer)
{
    EXPECT_EQ(diff({ "a\0b", 3 }, { "a\0c", 3 }), "Binary file a.dxf changes.\n");
}

// SPDX-License-Identifier: MIT
#include "lineDifference.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace
{

/// "2-3 -> 2-2" an edit.
std::string edits(const std::string &before, const std::string &after)
{
    std::string text;
    for (const CKvLineEdit &edit : lineDifference(CKvLines(before), CKvLines(after))) {
        text += std::to_string(edit.oldBegin) + "-" + std::to_string(edit.oldEnd) + " -> "
            + std::to_string(edit.newBegin) + "-" + std::to_string(edit.newEnd) + "\n";
    }
    return text;
}

/// Lines that all differ.
std::string numbered(int first, int last)
{
    std::string text;
    for (int i = first; i < last; ++i) {
        text += "line " + std::to_string(i) + "\n";
    }
    return text;
}

/// What the edits make of the old text.
std::string applied(const std::string &before, const std::string &after)
{
    const CKvLines oldLines(before);
    const CKvLines newLines(after);
    std::string result;
    std::size_t at = 0;
    const auto copy = [&result](const CKvLines &lines, std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i) {
            result += lines[i];
        }
    };
    for (const CKvLineEdit &edit : lineDifference(oldLines, newLines)) {
        EXPECT_GE(edit.oldBegin, at);
        copy(oldLines, at, edit.oldBegin);
        copy(newLines, edit.newBegin, edit.newEnd);
        at = edit.oldEnd;
    }
    copy(oldLines, at, oldLines.size());
    return result;
}

int changedLines(const std::string &before, const std::string &after)
{
    std::size_t lines = 0;
    for (const CKvLineEdit &edit : lineDifference(CKvLines(before), CKvLines(after))) {
        lines += edit.oldEnd - edit.oldBegin + edit.newEnd - edit.newBegin;
    }
    return int(lines);
}

} // namespace

TEST(LineDifference, EqualTextsHaveNone)
{
    EXPECT_EQ(edits("", ""), "");
    EXPECT_EQ(edits("a\nb\n", "a\nb\n"), "");
}

TEST(LineDifference, FindsOneChange)
{
    EXPECT_EQ(edits("a\nb\nc\n", "a\nX\nc\n"), "1-2 -> 1-2\n");
    EXPECT_EQ(edits("a\nb\nc\n", "a\nc\n"), "1-2 -> 1-1\n");
    EXPECT_EQ(edits("a\nc\n", "a\nb\nc\n"), "1-1 -> 1-2\n");
    EXPECT_EQ(edits("a\n", "a\nb\n"), "1-1 -> 1-2\n");
    EXPECT_EQ(edits("a\n", ""), "0-1 -> 0-0\n");
    EXPECT_EQ(edits("", "a\nb\n"), "0-0 -> 0-2\n");
}

TEST(LineDifference, AMissingLineEndIsAChange)
{
    EXPECT_EQ(edits("a\nb", "a\nb\n"), "1-2 -> 1-2\n");
    EXPECT_EQ(edits("a\r\n", "a\n"), "0-1 -> 0-1\n");
}

TEST(LineDifference, KeepsChangesApart)
{
    const std::string before = numbered(0, 1000);
    std::string after = before;
    after.replace(after.find("line 3\n"), 7, "other\n");
    after.erase(after.find("line 10\n"), 8);
    after.insert(after.find("line 990\n"), "new\n");

    EXPECT_EQ(edits(before, after), "3-4 -> 3-4\n10-11 -> 10-10\n990-990 -> 989-990\n");
}

TEST(LineDifference, FindsTheWayBehindALargeBlock)
{
    const std::string front = numbered(0, 100);
    const std::string block = numbered(1000, 41000);
    const std::string back = numbered(100, 200);

    EXPECT_EQ(edits(front + block + back, front + back), "100-40100 -> 100-100\n");
    EXPECT_EQ(edits(front + back, front + block + back), "100-100 -> 100-40100\n");
}

TEST(LineDifference, ManyChangesCloseTogetherStayTheirOwn)
{
    std::string before;
    std::string after;
    for (int i = 0; i < 20000; ++i) {
        const std::string rest = " 10\n" + std::to_string(i) + "\n 20\n0\n 30\n0\n  0\nPOINT\n";
        before += "  8\nOLD\n" + rest;
        after += "  8\nNEW\n" + rest;
    }

    EXPECT_EQ(changedLines(before, after), 40000);
}

TEST(LineDifference, TakesEverythingWhereNothingIsAlike)
{
    EXPECT_EQ(changedLines(numbered(0, 3000), numbered(5000, 9000)), 7000);
}

TEST(LineDifference, TurnsAnyTextIntoAnyOther)
{
    std::mt19937 random(20240229);
    const auto pick = [&random](int count) { return int(random() % unsigned(count)); };
    for (int round = 0; round < 300; ++round) {
        const int kinds = 2 + pick(50);
        std::string before;
        std::string after;
        for (int i = pick(400); i > 0; --i) {
            const std::string line = std::to_string(pick(kinds)) + "\n";
            before += pick(20) == 0 ? "" : line;
            after += pick(20) == 0 ? "" : line;
            after += pick(30) == 0 ? line + line : "";
        }
        EXPECT_EQ(applied(before, after), after) << "round " << round;
    }
}

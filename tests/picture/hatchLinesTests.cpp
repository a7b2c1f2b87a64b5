// SPDX-License-Identifier: MIT
#include "hatchLines.h"

#include <gtest/gtest.h>

namespace
{

constexpr CKvBox kSight { 0, 0, 100, 100 };

std::vector<QPointF> square(double from, double to)
{
    return { { from, from }, { to, from }, { to, to }, { from, to } };
}

CKvHatchFamily level(double spacing)
{
    return { { 0, 5 }, { 1, 0 }, { 0, spacing }, {} };
}

} // namespace

TEST(HatchLines, LinesRunFromEdgeToEdge)
{
    bool isDense = true;

    const std::vector<CKvHatchLine> lines =
        hatchLines({ square(10, 40) }, level(10), kSight, isDense);

    EXPECT_FALSE(isDense);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].line, QLineF(10, 15, 40, 15));
    EXPECT_EQ(lines[1].line, QLineF(10, 25, 40, 25));
    EXPECT_EQ(lines[2].line, QLineF(10, 35, 40, 35));
}

TEST(HatchLines, AnIslandIsLeftOut)
{
    bool isDense = true;

    const std::vector<CKvHatchLine> lines =
        hatchLines({ square(0, 60), square(20, 40) }, level(30), kSight, isDense);

    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].line, QLineF(0, 5, 60, 5));
    EXPECT_EQ(lines[1].line, QLineF(0, 35, 20, 35));
    EXPECT_EQ(lines[2].line, QLineF(40, 35, 60, 35));
}

TEST(HatchLines, DashesOfAllLinesBeginAtTheFamilysOrigin)
{
    bool isDense = true;
    CKvHatchFamily family = level(20);
    family.base = { 3, 5 };
    family.step = { 7, 20 };

    const std::vector<CKvHatchLine> lines = hatchLines({ square(10, 40) }, family, kSight, isDense);

    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].line, QLineF(10, 25, 40, 25));
    EXPECT_DOUBLE_EQ(lines[0].dashStart, 0);
}

TEST(HatchLines, LinesThatCanNotBeToldApartAreDense)
{
    bool isDense = false;

    const std::vector<CKvHatchLine> lines =
        hatchLines({ square(10, 40) }, level(1.5), kSight, isDense);

    EXPECT_TRUE(isDense);
    EXPECT_TRUE(lines.empty());
}

TEST(HatchLines, AFamilyWithoutDirectionDrawsNothing)
{
    bool isDense = false;

    EXPECT_TRUE(hatchLines({ square(10, 40) }, CKvHatchFamily(), kSight, isDense).empty());
}

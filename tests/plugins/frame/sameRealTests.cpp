// SPDX-License-Identifier: MIT
#include "sameReal.h"

#include <gtest/gtest.h>

#include <limits>

TEST(SameReal, NumbersMayDifferByATenBillionthInEitherDirection)
{
    EXPECT_TRUE(sameReal(2.5, 2.5));
    EXPECT_TRUE(sameReal(2.5, 2.50000000001));
    EXPECT_TRUE(sameReal(2.50000000001, 2.5));
    EXPECT_TRUE(sameReal(0, 1e-10));
    EXPECT_FALSE(sameReal(0, 1.1e-10));
    EXPECT_FALSE(sameReal(1.1e-10, 0));
    EXPECT_FALSE(sameReal(2.5, 2.500001));
}

TEST(SameReal, LargeNumbersHaveNoMoreRoomThanSmallOnes)
{
    EXPECT_FALSE(sameReal(1e6, 1e6 + 1e-9));
}

TEST(SameReal, WhatIsNoNumberDiffersFromNothing)
{
    const double none = std::numeric_limits<double>::quiet_NaN();

    EXPECT_TRUE(sameReal(none, 1));
    EXPECT_TRUE(sameReal(1, none));
}

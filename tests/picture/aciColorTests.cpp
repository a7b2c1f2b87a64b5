// SPDX-License-Identifier: MIT
#include "aciColor.h"

#include <gtest/gtest.h>

TEST(AciColor, TheFirstNineAreTheNamedOnes)
{
    EXPECT_EQ(aciColor(1), qRgb(255, 0, 0));
    EXPECT_EQ(aciColor(2), qRgb(255, 255, 0));
    EXPECT_EQ(aciColor(3), qRgb(0, 255, 0));
    EXPECT_EQ(aciColor(4), qRgb(0, 255, 255));
    EXPECT_EQ(aciColor(5), qRgb(0, 0, 255));
    EXPECT_EQ(aciColor(6), qRgb(255, 0, 255));
    EXPECT_EQ(aciColor(7), qRgb(255, 255, 255));
    EXPECT_EQ(aciColor(8), qRgb(128, 128, 128));
    EXPECT_EQ(aciColor(9), qRgb(192, 192, 192));
}

TEST(AciColor, TheWheelRunsFromRedOverGreenAndBlueInStepsOfFifteenDegrees)
{
    EXPECT_EQ(aciColor(10), qRgb(255, 0, 0));
    EXPECT_EQ(aciColor(20), qRgb(255, 63, 0));
    EXPECT_EQ(aciColor(30), qRgb(255, 127, 0));
    EXPECT_EQ(aciColor(50), qRgb(255, 255, 0));
    EXPECT_EQ(aciColor(90), qRgb(0, 255, 0));
    EXPECT_EQ(aciColor(150), qRgb(0, 127, 255));
    EXPECT_EQ(aciColor(170), qRgb(0, 0, 255));
    EXPECT_EQ(aciColor(210), qRgb(255, 0, 255));
    EXPECT_EQ(aciColor(240), qRgb(255, 0, 63));
}

TEST(AciColor, WithinAHueColoursGetDarkerAndEachHasAPaleOne)
{
    EXPECT_EQ(aciColor(11), qRgb(255, 127, 127));
    EXPECT_EQ(aciColor(12), qRgb(165, 0, 0));
    EXPECT_EQ(aciColor(14), qRgb(127, 0, 0));
    EXPECT_EQ(aciColor(15), qRgb(127, 63, 63));
    EXPECT_EQ(aciColor(18), qRgb(38, 0, 0));
}

TEST(AciColor, GreysCloseThePaletteAndWhatIsOutsideIsWhite)
{
    EXPECT_EQ(aciColor(250), qRgb(51, 51, 51));
    EXPECT_EQ(aciColor(255), qRgb(255, 255, 255));
    EXPECT_EQ(aciColor(256), qRgb(255, 255, 255));
    EXPECT_EQ(aciColor(-3), qRgb(255, 255, 255));
}

// SPDX-License-Identifier: MIT
#include "OdCmColor.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using Method = OdCmColor::Method;

OdCmColor withBook(OdCmColor color, const char *name)
{
    color.setBookName(OdString(name));
    return color;
}

OdCmColor withMethod(OdCmColor color, Method method)
{
    color.setMethod(method);
    return color;
}

struct NameCase {
    const char *name;
    OdCmColor color;
    const char *shown;
};

class ColorName : public testing::TestWithParam<NameCase>
{
};

std::vector<NameCase> nameCases()
{
    return {
        { "OfANewColor", OdCmColor(), "ByLayer" },
        { "OfIndex256", OdCmColor::byIndex(256), "ByLayer" },
        { "OfIndex0", OdCmColor::byIndex(0), "ByBlock" },
        { "OfIndex1", OdCmColor::byIndex(1), "red" },
        { "OfIndex2", OdCmColor::byIndex(2), "yellow" },
        { "OfIndex3", OdCmColor::byIndex(3), "green" },
        { "OfIndex4", OdCmColor::byIndex(4), "cyan" },
        { "OfIndex5", OdCmColor::byIndex(5), "blue" },
        { "OfIndex6", OdCmColor::byIndex(6), "magenta" },
        { "OfIndex7", OdCmColor::byIndex(7), "white" },
        { "OfIndex8", OdCmColor::byIndex(8), "8" },
        { "OfIndex255", OdCmColor::byIndex(255), "255" },
        { "OfAnIndexThatNoScreenHas", OdCmColor::byIndex(257), "257" },
        { "OfANegativeIndex", OdCmColor::byIndex(-3), "-3" },
        { "OfATrueColor", OdCmColor::byColor(255, 0, 16, 1), "255,0,16" },
        { "OfABookColor", withBook(OdCmColor::byColor(1, 2, 3, 1), "BOOK$Teal 5"), "BOOK$Teal 5" },
        { "OfABookColorByIndex", withBook(OdCmColor::byIndex(1), "BOOK$Red"), "BOOK$Red" },
        { "OfByLayerEvenWithABook", withBook(OdCmColor(), "BOOK$Red"), "ByLayer" },
        { "OfByBlockEvenWithABook", withBook(OdCmColor::byIndex(0), "BOOK$Red"), "ByBlock" },
    };
}

} // namespace

TEST_P(ColorName, IsShown)
{
    EXPECT_EQ(GetParam().color.colorNameForDisplay().toQString().toStdString(), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Named, ColorName, testing::ValuesIn(nameCases()), [](const auto &row) {
    return std::string(row.param.name);
});

TEST(Color, TheIndexTellsTheMethod)
{
    EXPECT_TRUE(OdCmColor::byIndex(256).isByLayer());
    EXPECT_TRUE(OdCmColor::byIndex(0).isByBlock());
    EXPECT_TRUE(OdCmColor::byIndex(1).isByIndex());
    EXPECT_TRUE(OdCmColor::byIndex(255).isByIndex());
    EXPECT_TRUE(OdCmColor::byIndex(257).isByIndex());
}

TEST(Color, KeepsItsIndexInSixteenBits)
{
    EXPECT_EQ(OdCmColor().colorIndex(), 256);
    EXPECT_EQ(OdCmColor::byIndex(0).colorIndex(), 0);
    EXPECT_EQ(OdCmColor::byIndex(-7).colorIndex(), -7);
    EXPECT_EQ(OdCmColor::byIndex(65536 + 1).colorIndex(), 32767);
    EXPECT_EQ(OdCmColor::byIndex(-65536).colorIndex(), -32768);
}

TEST(Color, ATrueColorKeepsTheIndexBesideIt)
{
    const OdCmColor color = OdCmColor::byColor(10, 20, 30, 254);

    EXPECT_TRUE(color.isByColor());
    EXPECT_EQ(color.red(), 10);
    EXPECT_EQ(color.green(), 20);
    EXPECT_EQ(color.blue(), 30);
    EXPECT_EQ(color.colorIndex(), 254);
}

TEST(Color, AMethodCanBeSet)
{
    EXPECT_TRUE(withMethod(OdCmColor(), Method::kForeground).isForeground());
    EXPECT_TRUE(withMethod(OdCmColor(), Method::kNone).isNone());
    EXPECT_FALSE(withMethod(OdCmColor(), Method::kNone).isByLayer());
}

TEST(Color, IsEqualByMethodIndexAndBook)
{
    EXPECT_TRUE(OdCmColor() == OdCmColor::byIndex(256));
    EXPECT_TRUE(OdCmColor::byIndex(5) == OdCmColor::byIndex(5));
    EXPECT_TRUE(OdCmColor::byIndex(5) != OdCmColor::byIndex(6));
    EXPECT_TRUE(OdCmColor::byIndex(5) != OdCmColor::byIndex(0));
    EXPECT_TRUE(OdCmColor::byIndex(5) != withBook(OdCmColor::byIndex(5), "BOOK$Blue"));
    EXPECT_TRUE(withBook(OdCmColor::byIndex(5), "BOOK$Blue")
                == withBook(OdCmColor::byIndex(5), "BOOK$Blue"));
    EXPECT_TRUE(withBook(OdCmColor::byIndex(5), "BOOK$Blue")
                != withBook(OdCmColor::byIndex(5), "BOOK$blue"));
}

TEST(Color, TrueColorsAreEqualByTheirComponentsWhateverIndexStandsBesideThem)
{
    const OdCmColor color = OdCmColor::byColor(1, 2, 3, 4);

    EXPECT_TRUE(color == OdCmColor::byColor(1, 2, 3, 5));
    EXPECT_TRUE(color != OdCmColor::byColor(0, 2, 3, 4));
    EXPECT_TRUE(color != OdCmColor::byColor(1, 0, 3, 4));
    EXPECT_TRUE(color != OdCmColor::byColor(1, 2, 0, 4));
    EXPECT_TRUE(color != OdCmColor::byIndex(4));
}

TEST(Color, AnIndexLeftOverFromAnotherMethodMakesNoDifference)
{
    EXPECT_TRUE(withMethod(OdCmColor::byIndex(5), Method::kByLayer) == OdCmColor());
}

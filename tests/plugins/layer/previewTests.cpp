// SPDX-License-Identifier: MIT
#include "CKvLayerTest.h"

namespace
{

class LayerPreview : public CKvLayerTest
{
};

} // namespace

TEST_F(LayerPreview, WhatDiffersIsShownInTheOrderOfTheNames)
{
    m_drawing.layer("WALLS").color(1).lineWeight(25).lineStyle("DASHED");
    m_office.layer("WALLS").color(5).lineWeight(30).lineStyle("CENTER");
    report();

    EXPECT_EQ(preview("WALLS", "WALLS"),
              "LineColor: red -> blue\n"
              "LineStyle: DASHED -> CENTER\n"
              "LineWeight: 0.25 mm -> 0.30 mm\n");
}

TEST_F(LayerPreview, WhatIsEqualIsNotShown)
{
    m_drawing.layer("WALLS").color(1).lineWeight(25);
    m_office.layer("WALLS").color(1).lineWeight(30);
    report();

    EXPECT_EQ(preview("WALLS", "WALLS"), "LineWeight: 0.25 mm -> 0.30 mm\n");
}

TEST_F(LayerPreview, ARenameIsNeverShown)
{
    m_drawing.layer("ATTIC").color(1);
    m_office.layer("WALLS").color(1);
    report();

    EXPECT_EQ(preview("ATTIC", "WALLS"), "");
}

TEST_F(LayerPreview, ALineStyleInOtherLettersIsShownAlthoughTheScanPassesIt)
{
    m_drawing.layer("WALLS").color(1).lineStyle("Dashed");
    m_office.layer("WALLS").color(5).lineStyle("DASHED");
    report();

    EXPECT_EQ(preview("WALLS", "WALLS"),
              "LineColor: red -> blue\n"
              "LineStyle: Dashed -> DASHED\n");
}

TEST_F(LayerPreview, ATrueColorOfTheSameIndexIsShownAlthoughTheScanPassesIt)
{
    m_drawing.layer("WALLS").trueColor(1, 2, 3, 5).lineWeight(25);
    m_office.layer("WALLS").trueColor(9, 8, 7, 5).lineWeight(30);
    report();

    EXPECT_EQ(preview("WALLS", "WALLS"),
              "LineColor: 1,2,3 -> 9,8,7\n"
              "LineWeight: 0.25 mm -> 0.30 mm\n");
}

TEST_F(LayerPreview, TheValuesShownAreThoseOfTheAudit)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("WALLS").color(5);
    report();

    repair("WALLS", "WALLS");

    EXPECT_EQ(preview("WALLS", "WALLS"), "LineColor: red -> blue\n");
}

// SPDX-License-Identifier: MIT
#include "CKvTextStyleTest.h"

namespace
{

class TextStylePreview : public CKvTextStyleTest
{
};

} // namespace

TEST_F(TextStylePreview, WhatDiffersIsShownInTheOrderOfTheNames)
{
    m_drawing.textStyle("MINE");
    m_office.textStyle("NOTES")
        .font("arial.ttf")
        .bigFont("big.shx")
        .height(2.5)
        .width(0.8)
        .obliqueDegrees(90)
        .generation(6)
        .flags(4)
        .typeface("Arial", kItalicFont)
        .annotative(1)
        .matchOrientation(1);
    report();

    EXPECT_EQ(preview("MINE", "NOTES"),
              "Annotative: 0 -> 1\n"
              "Backwards: 0 -> 1\n"
              "BigFont:  -> big.shx\n"
              "Font: txt -> arial.ttf\n"
              "Font Style:  -> Italic\n"
              "Match orientation to sheet: 0 -> 1\n"
              "Name: MINE -> NOTES\n"
              "Oblique Angle: 0.0000 -> 1.5708\n"
              "Text Height: 0.0000 -> 2.5000\n"
              "Upside Down: 0 -> 1\n"
              "Vertical: 0 -> 1\n"
              "Width: 1.0000 -> 0.8000\n");
}

TEST_F(TextStylePreview, ABoldFaceAgainstTheSameStyleWithoutItIsOneRow)
{
    m_drawing.textStyle("NOTES").font("arial.ttf").typeface("Arial", kBoldFont);
    m_office.textStyle("NOTES").font("arial.ttf").typeface("Arial", 0);
    report();

    EXPECT_EQ(preview("NOTES", "NOTES"), "Font Style: Bold -> Normal\n");
}

TEST_F(TextStylePreview, TheOrientationToTheSheetAloneIsOneRow)
{
    m_drawing.textStyle("NOTES").annotative(1);
    m_office.textStyle("NOTES").annotative(1).matchOrientation(1);

    EXPECT_EQ(report(), "NOTES: TextStyle properties are non-standard. NOTES@/office.dxf*\n");
    EXPECT_EQ(preview("NOTES", "NOTES"), "Match orientation to sheet: 0 -> 1\n");
}

TEST_F(TextStylePreview, LettersAndDigitsThatDontCountAreNotShown)
{
    m_drawing.textStyle("notes").font("TXT").height(2.5).width(0.8);
    m_office.textStyle("NOTES").font("txt").height(2.50000000001).width(0.9);
    report();

    EXPECT_EQ(preview("notes", "NOTES"), "Width: 0.8000 -> 0.9000\n");
}

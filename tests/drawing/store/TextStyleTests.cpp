// SPDX-License-Identifier: MIT
#include "CKvTextStyleRecordTest.h"

#include <cmath>

namespace
{

constexpr double kPi = 3.14159265358979323846;

using TextStyles = CKvTextStyleRecordTest;

} // namespace

TEST_F(TextStyles, EachValueIsReadFromItsGroup)
{
    m_drawing.textStyle("NOTES")
        .flags(4)
        .font("romans.shx")
        .bigFont("bigfont.shx")
        .height(2.5)
        .width(0.8)
        .obliqueDegrees(15)
        .generation(6);
    const OdDbTextStyleTableRecordPtr style = open();

    EXPECT_FALSE(style->isShapeFile());
    EXPECT_TRUE(style->isVertical());
    EXPECT_EQ(style->fileName(), OdString("romans.shx"));
    EXPECT_EQ(style->bigFontFileName(), OdString("bigfont.shx"));
    EXPECT_EQ(style->textSize(), 2.5);
    EXPECT_EQ(style->xScale(), 0.8);
    EXPECT_NEAR(style->obliquingAngle(), kPi / 12, 1e-15);
    EXPECT_TRUE(style->isBackwards());
    EXPECT_TRUE(style->isUpsideDown());
}

TEST_F(TextStyles, WhatTheFileLeavesOutHasItsDefault)
{
    CKvTextStyleBuilder &notes = m_drawing.textStyle("NOTES");
    for (const int code : { 70, 3, 4, 40, 41, 42, 50, 71 }) {
        notes.without(code);
    }
    const OdDbTextStyleTableRecordPtr style = open();

    EXPECT_FALSE(style->isShapeFile());
    EXPECT_FALSE(style->isVertical());
    EXPECT_TRUE(style->fileName().isEmpty());
    EXPECT_TRUE(style->bigFontFileName().isEmpty());
    EXPECT_EQ(style->textSize(), 0);
    EXPECT_EQ(style->xScale(), 1);
    EXPECT_EQ(style->obliquingAngle(), 0);
    EXPECT_FALSE(style->isBackwards());
    EXPECT_FALSE(style->isUpsideDown());
    EXPECT_EQ(font(), " 0 0");
}

TEST_F(TextStyles, FlagOneMarksAShapeFile)
{
    m_drawing.textStyle("NOTES").flags(65);

    EXPECT_TRUE(open()->isShapeFile());
    EXPECT_FALSE(open()->isVertical());
}

TEST_F(TextStyles, EachSetterChangesItsGroupAndNothingElse)
{
    struct Case {
        const char *change;
        void (*set)(OdDbTextStyleTableRecord &style);
    };
    const Case kCases[] = {
        { "-0 +4 ", [](OdDbTextStyleTableRecord &style) { style.setIsVertical(true); } },
        { "-txt +isocp.shx ",
          [](OdDbTextStyleTableRecord &style) { style.setFileName(OdString("isocp.shx")); } },
        { "- +big.shx ",
          [](OdDbTextStyleTableRecord &style) { style.setBigFontFileName(OdString("big.shx")); } },
        { "-0.0 +3.5 ", [](OdDbTextStyleTableRecord &style) { style.setTextSize(3.5); } },
        { "-1.0 +0.7 ", [](OdDbTextStyleTableRecord &style) { style.setXScale(0.7); } },
        { "-0.0 +15.0 ",
          [](OdDbTextStyleTableRecord &style) { style.setObliquingAngle(kPi / 12); } },
        { "-0 +2 ", [](OdDbTextStyleTableRecord &style) { style.setIsBackwards(true); } },
        { "-0 +4 ", [](OdDbTextStyleTableRecord &style) { style.setIsUpsideDown(true); } },
    };
    m_drawing.textStyle("NOTES");
    for (const Case &each : kCases) {
        m_database = nullptr;

        each.set(*open(OdDb::kForWrite));

        EXPECT_EQ(changes(), each.change);
    }
}

TEST_F(TextStyles, ASetterOfTheSameValueKeepsTheSpellingOfTheFile)
{
    m_drawing.textStyle("NOTES")
        .group(3, "")
        .typeface("Arial", 34)
        .without(40)
        .group(40, "2.50000")
        .without(50)
        .group(50, "015.00");
    {
        const OdDbTextStyleTableRecordPtr style = open(OdDb::kForWrite);

        style->setTextSize(style->textSize());
        style->setXScale(1);
        style->setObliquingAngle(style->obliquingAngle());
        style->setIsVertical(false);
        style->setFileName(style->fileName());
        style->setFont(OdString("Arial"), false, false, 0, 34);
    }

    EXPECT_EQ(changes(), "");
}

TEST_F(TextStyles, OtherFlagsStayWhenOneIsSet)
{
    m_drawing.textStyle("NOTES").flags(64).generation(4);

    open(OdDb::kForWrite)->setIsVertical(true);
    open(OdDb::kForWrite)->setIsBackwards(true);
    open(OdDb::kForWrite)->setIsUpsideDown(false);

    const OdDbTextStyleTableRecordPtr style = reopened();
    EXPECT_EQ(CKvDrawingFile::toBytes(*m_database).count(" 70\n68\n"), 1);
    EXPECT_TRUE(style->isBackwards());
    EXPECT_FALSE(style->isUpsideDown());
}

TEST_F(TextStyles, GroupsThatAreMissingAreAddedInTheUsualOrder)
{
    CKvTextStyleBuilder &notes = m_drawing.textStyle("NOTES");
    for (const int code : { 3, 4, 40, 41, 42, 50, 71 }) {
        notes.without(code);
    }
    {
        const OdDbTextStyleTableRecordPtr style = open(OdDb::kForWrite);

        style->setBigFontFileName(OdString("big.shx"));
        style->setFileName(OdString("romans.shx"));
        style->setIsBackwards(true);
        style->setObliquingAngle(kPi / 6);
        style->setXScale(0.5);
        style->setTextSize(2);
    }

    EXPECT_EQ(changes(), "+40 +2.0 +41 +0.5 +50 +30.0 +71 +2 +3 +romans.shx +4 +big.shx ");
}

TEST_F(TextStyles, AStyleThatIsOpenForReadingRefusesToBeChanged)
{
    m_drawing.textStyle("NOTES");
    const OdDbTextStyleTableRecordPtr style = open();

    EXPECT_THROW(style->setTextSize(0), OdError_NotOpenForWrite);
    EXPECT_THROW(style->setFileName(OdString("txt")), OdError_NotOpenForWrite);
    EXPECT_THROW(style->setFont(OdString(), false, false, 0, 0), OdError_NotOpenForWrite);
}

TEST_F(TextStyles, ANewStyleTakesItsValuesIntoTheDrawing)
{
    m_drawing.textStyle("NOTES");
    open();
    OdDbTextStyleTableRecordPtr style = OdDbTextStyleTableRecord::createObject();
    style->setName(OdString("TITLES"));
    style->setTextSize(5);
    style->setFileName(OdString("arial.ttf"));
    style->setFont(OdString("Arial"), true, false, 0, 34);
    const OdDbTextStyleTablePtr table(
        m_database->getTextStyleTableId().openObject(OdDb::kForWrite));

    table->add(style);

    style = nullptr;
    const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*m_database));
    const OdDbTextStyleTableRecordPtr titles(
        recordId(again->getTextStyleTableId(), "TITLES").openObject());
    EXPECT_EQ(titles->textSize(), 5);
    OdString typeface;
    bool isBold = false;
    bool isItalic = true;
    int charset = 0;
    int pitchAndFamily = 0;
    titles->font(typeface, isBold, isItalic, charset, pitchAndFamily);
    EXPECT_EQ(typeface, OdString("Arial"));
    EXPECT_TRUE(isBold);
    EXPECT_FALSE(isItalic);
}

TEST_F(TextStyles, AStyleWithoutANameIsFoundByNoName)
{
    m_drawing.textStyle("").flags(1).font("ltypeshp.shx");
    m_drawing.textStyle("");
    m_drawing.textStyle("NOTES");
    open();
    const OdDbTextStyleTablePtr table(m_database->getTextStyleTableId().openObject());

    EXPECT_TRUE(table->getAt(OdString()).isNull());
    EXPECT_FALSE(table->has(OdString()));
    EXPECT_EQ(namesText(m_database->getTextStyleTableId()), "\n\nNOTES\n");
}

TEST_F(TextStyles, DrawingATextNeedsAStyle)
{
    m_drawing.textStyle("NOTES");
    m_drawing.layer("0");
    open();
    OdGiTextStyle style;

    EXPECT_THROW(giFromDbTextStyle(OdDbObjectId(), style), OdError);
    EXPECT_THROW(giFromDbTextStyle(recordId(m_database->getLayerTableId(), "0"), style),
                 OdError_NotThatKindOfClass);
}

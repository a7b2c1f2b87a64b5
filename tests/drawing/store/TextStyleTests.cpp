// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbTextStyleTable.h"
#include "OdDbTextStyleTableRecord.h"
#include "drawingText.h"
#include "giFromDbTextStyle.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

constexpr double kPi = 3.14159265358979323846;
constexpr int kBold = 0x02000000;
constexpr int kItalic = 0x01000000;

/// A drawing with one style, "NOTES".
class TextStyles : public testing::Test
{
protected:
    OdDbTextStyleTableRecordPtr open(OdDb::OpenMode mode = OdDb::kForRead)
    {
        if (!m_database) {
            m_database = m_drawing.open();
        }
        return OdDbTextStyleTableRecordPtr(
            recordId(m_database->getTextStyleTableId(), "NOTES").openObject(mode));
    }
    /// "Arial bold italic 34 49": typeface, flags, charset, pitch and family.
    std::string font()
    {
        OdString typeface;
        bool isBold = false;
        bool isItalic = false;
        int charset = -1;
        int pitchAndFamily = -1;
        open()->font(typeface, isBold, isItalic, charset, pitchAndFamily);
        return typeface.toQString().toStdString() + (isBold ? " bold" : "")
            + (isItalic ? " italic" : "") + ' ' + std::to_string(charset) + ' '
            + std::to_string(pitchAndFamily);
    }
    bool isShx()
    {
        OdGiTextStyle style;
        giFromDbTextStyle(open()->objectId(), style);
        return (style.flags() & 0x20) != 0;
    }
    /// Lines that a save would change: "-old" and "+new", one behind the other.
    std::string changes() const
    {
        const QList<QByteArray> before = m_drawing.toBytes().split('\n');
        const QList<QByteArray> after = CKvDrawingFile::toBytes(*m_database).split('\n');
        int head = 0;
        while (head < before.size() && head < after.size() && before[head] == after[head]) {
            ++head;
        }
        int tail = 0;
        while (tail < before.size() - head && tail < after.size() - head
               && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
            ++tail;
        }
        std::string text;
        for (int i = head; i < before.size() - tail; ++i) {
            text += '-' + before[i].trimmed().toStdString() + ' ';
        }
        for (int i = head; i < after.size() - tail; ++i) {
            text += '+' + after[i].trimmed().toStdString() + ' ';
        }
        return text;
    }
    OdDbTextStyleTableRecordPtr reopened()
    {
        const QByteArray bytes = CKvDrawingFile::toBytes(*m_database);
        m_database = CKvDrawingFile::fromBytes(bytes);
        return open();
    }

    CKvDrawingBuilder m_drawing;
    OdDbDatabasePtr m_database;
};

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

TEST_F(TextStyles, TheTrueTypeFontIsReadFromTheExtendedData)
{
    m_drawing.textStyle("NOTES").font("arialbi.ttf").typeface("Arial", kBold | kItalic | 0xCC22);

    EXPECT_EQ(font(), "Arial bold italic 204 34");
    EXPECT_FALSE(isShx());
}

TEST_F(TextStyles, TheNameOfTheApplicationIsReadWithoutRegardToCaseAndTheBlockStandsAnywhere)
{
    m_drawing.textStyle("NOTES")
        .annotative(1)
        .extendedData("Acad", { { 1000, "Consolas" }, { 1071, 49 } })
        .matchOrientation(1);

    EXPECT_EQ(font(), "Consolas 0 49");
}

TEST_F(TextStyles, TheFontChangesInItsGroups)
{
    m_drawing.textStyle("NOTES").font("arial.ttf").typeface("Arial", 34).annotative(1);

    open(OdDb::kForWrite)->setFont(OdString("Arial"), true, false, 0, 34);

    EXPECT_EQ(changes(), "-34 +33554466 ");
    EXPECT_EQ(font(), "Arial bold 0 34");
}

TEST_F(TextStyles, AFontIsAddedWithItsApplicationWhereThereWasNone)
{
    m_drawing = CKvDrawingBuilder("AC1032");
    m_drawing.textStyle("NOTES").font("arial.ttf");

    open(OdDb::kForWrite)->setFont(OdString(QString::fromUtf8("Ariäl")), false, true, 1, 2);

    reopened();
    EXPECT_EQ(font(), "Ariäl italic 1 2");
}

TEST_F(TextStyles, ADrawingWithoutTheApplicationGetsItEntered)
{
    m_drawing.textStyle("NOTES");
    QByteArray bytes = m_drawing.toBytes();
    const int at = bytes.indexOf("  2\nACAD\n");
    bytes.replace(at, 9, "  2\nELSE\n");
    m_database = CKvDrawingFile::fromBytes(bytes);

    open(OdDb::kForWrite)->setFont(OdString("Arial"), false, false, 0, 0);

    const QByteArray saved = CKvDrawingFile::toBytes(*m_database);
    EXPECT_EQ(saved.count("  2\nACAD\n"), 1);
    EXPECT_EQ(saved.count("1001\nACAD\n1000\nArial\n1071\n0\n"), 1);
}

TEST_F(TextStyles, NoFontIsWrittenWhereThereIsNothingToSay)
{
    m_drawing.textStyle("NOTES");

    open(OdDb::kForWrite)->setFont(OdString(), false, false, 0, 0);

    EXPECT_EQ(changes(), "");
}

TEST_F(TextStyles, FlagsOfTheFontThatNobodyKnowsStay)
{
    m_drawing.textStyle("NOTES").typeface("Arial", 0x00040022);

    open(OdDb::kForWrite)->setFont(OdString("Arial"), true, false, 0, 0x22);

    EXPECT_EQ(changes(), "-262178 +33816610 ");
}

TEST_F(TextStyles, AFontOfShapesHasNoTypefaceAndNoTrueTypeFile)
{
    struct Case {
        const char *file;
        const char *typeface;
        bool isShx;
    };
    constexpr Case kCases[] = {
        { "txt", "", true },           { "romans.shx", "", true }, { "", "", true },
        { "arial.ttf", "", false },    { "ARIAL.TTF", "", false }, { "fonts.ttc", "", false },
        { "open.otf", "", false },     { "txt", "Arial", false },  { "", "Times New Roman", false },
        { "arial.ttf.shx", "", true },
    };
    for (const Case &each : kCases) {
        m_drawing = CKvDrawingBuilder();
        m_database = nullptr;
        CKvTextStyleBuilder &notes = m_drawing.textStyle("NOTES").font(each.file);
        if (*each.typeface != '\0') {
            notes.typeface(each.typeface, 0);
        }

        EXPECT_EQ(isShx(), each.isShx) << each.file << ' ' << each.typeface;
    }
}

TEST_F(TextStyles, AnotherFileOfShapesTakesThePlaceOfTheTypeface)
{
    m_drawing.textStyle("NOTES").font("arial.ttf").typeface("Arial", kBold | 34);

    open(OdDb::kForWrite)->setFileName(OdString("romans.shx"));

    EXPECT_TRUE(isShx());
    EXPECT_EQ(font(), " bold 0 34");
}

TEST_F(TextStyles, AnotherTrueTypeFileKeepsTheTypeface)
{
    m_drawing.textStyle("NOTES").font("arial.ttf").typeface("Arial", 34);

    open(OdDb::kForWrite)->setFileName(OdString("arialn.ttf"));

    EXPECT_EQ(changes(), "-arial.ttf +arialn.ttf ");
}

TEST_F(TextStyles, AFileInAnotherAlphabetIsWrittenInTheEncodingOfTheDrawing)
{
    m_drawing.textStyle("NOTES");

    open(OdDb::kForWrite)->setFileName(OdString(QString::fromUtf8("шрифт.shx")));

    EXPECT_EQ(reopened()->fileName(), OdString(QString::fromUtf8("шрифт.shx")));
    EXPECT_TRUE(CKvDrawingFile::toBytes(*m_database).contains("\\U+0448"));
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

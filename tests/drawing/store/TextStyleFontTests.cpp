// SPDX-License-Identifier: MIT
#include "CKvTextStyleRecordTest.h"

namespace
{

constexpr int kBold = 0x02000000;
constexpr int kItalic = 0x01000000;

using TextStyleFonts = CKvTextStyleRecordTest;

} // namespace

TEST_F(TextStyleFonts, TheTrueTypeFontIsReadFromTheExtendedData)
{
    m_drawing.textStyle("NOTES").font("arialbi.ttf").typeface("Arial", kBold | kItalic | 0xCC22);

    EXPECT_EQ(font(), "Arial bold italic 204 34");
    EXPECT_FALSE(isShx());
}

TEST_F(TextStyleFonts, TheNameOfTheApplicationIsReadWithoutRegardToCaseAndTheBlockStandsAnywhere)
{
    m_drawing.textStyle("NOTES")
        .annotative(1)
        .extendedData("Acad", { { 1000, "Consolas" }, { 1071, 49 } })
        .matchOrientation(1);

    EXPECT_EQ(font(), "Consolas 0 49");
}

TEST_F(TextStyleFonts, TheFontChangesInItsGroups)
{
    m_drawing.textStyle("NOTES").font("arial.ttf").typeface("Arial", 34).annotative(1);

    open(OdDb::kForWrite)->setFont(OdString("Arial"), true, false, 0, 34);

    EXPECT_EQ(changes(), "-34 +33554466 ");
    EXPECT_EQ(font(), "Arial bold 0 34");
}

TEST_F(TextStyleFonts, AFontIsAddedWithItsApplicationWhereThereWasNone)
{
    m_drawing = CKvDrawingBuilder("AC1032");
    m_drawing.textStyle("NOTES").font("arial.ttf");

    open(OdDb::kForWrite)->setFont(OdString(QString::fromUtf8("Ariäl")), false, true, 1, 2);

    reopened();
    EXPECT_EQ(font(), "Ariäl italic 1 2");
}

TEST_F(TextStyleFonts, ADrawingWithoutTheApplicationGetsItEntered)
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

TEST_F(TextStyleFonts, NoFontIsWrittenWhereThereIsNothingToSay)
{
    m_drawing.textStyle("NOTES");

    open(OdDb::kForWrite)->setFont(OdString(), false, false, 0, 0);

    EXPECT_EQ(changes(), "");
}

TEST_F(TextStyleFonts, FlagsOfTheFontThatNobodyKnowsStay)
{
    m_drawing.textStyle("NOTES").typeface("Arial", 0x00040022);

    open(OdDb::kForWrite)->setFont(OdString("Arial"), true, false, 0, 0x22);

    EXPECT_EQ(changes(), "-262178 +33816610 ");
}

TEST_F(TextStyleFonts, AFontOfShapesHasNoTypefaceAndNoTrueTypeFile)
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

TEST_F(TextStyleFonts, AnotherFileOfShapesTakesThePlaceOfTheTypeface)
{
    m_drawing.textStyle("NOTES").font("arial.ttf").typeface("Arial", kBold | 34);

    open(OdDb::kForWrite)->setFileName(OdString("romans.shx"));

    EXPECT_TRUE(isShx());
    EXPECT_EQ(font(), " bold 0 34");
}

TEST_F(TextStyleFonts, AnotherTrueTypeFileKeepsTheTypeface)
{
    m_drawing.textStyle("NOTES").font("arial.ttf").typeface("Arial", 34);

    open(OdDb::kForWrite)->setFileName(OdString("arialn.ttf"));

    EXPECT_EQ(changes(), "-arial.ttf +arialn.ttf ");
}

TEST_F(TextStyleFonts, AFileInAnotherAlphabetIsWrittenInTheEncodingOfTheDrawing)
{
    m_drawing.textStyle("NOTES");

    open(OdDb::kForWrite)->setFileName(OdString(QString::fromUtf8("шрифт.shx")));

    EXPECT_EQ(reopened()->fileName(), OdString(QString::fromUtf8("шрифт.shx")));
    EXPECT_TRUE(CKvDrawingFile::toBytes(*m_database).contains("\\U+0448"));
}

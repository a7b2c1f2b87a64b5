// SPDX-License-Identifier: MIT
#include "CKvDimStyleTest.h"
#include "dimStylePropertyLabel.h"

namespace
{

class DimStyleComparison : public CKvDimStyleTest
{
protected:
    DimStyleComparison() { m_drawing = CKvDrawingBuilder("AC1032"); }
    std::string compared(bool includeAll = false)
    {
        m_database = m_drawing.open();
        return rowsText(
            compareDimStyles(styleOf(m_database, "A"), styleOf(m_database, "B"), includeAll));
    }
};

} // namespace

TEST_F(DimStyleComparison, AStyleHasNoDifferenceFromItself)
{
    m_drawing.dimStyle("A").group(41, 2.5);
    m_database = m_drawing.open();
    const OdDbDimStyleTableRecordPtr style = styleOf(m_database, "A");

    EXPECT_EQ(rowsText(compareDimStyles(style, style, false)), "");
    EXPECT_EQ(rowsText(compareDimStyles(style, styleOf(m_database, "A"), false)), "");
}

TEST_F(DimStyleComparison, ANullStyleGivesNoRows)
{
    m_drawing.dimStyle("A");
    m_database = m_drawing.open();
    const OdDbDimStyleTableRecordPtr style = styleOf(m_database, "A");
    const OdDbDimStyleTableRecordPtr none;

    EXPECT_TRUE(compareDimStyles(style, none, false).empty());
    EXPECT_TRUE(compareDimStyles(none, style, true).empty());
    EXPECT_TRUE(compareDimStyles(none, none, true).empty());
}

TEST_F(DimStyleComparison, AllRowsAreSeventyNineInTheirOrder)
{
    m_drawing.dimStyle("A");
    m_drawing.dimStyle("B");
    m_database = m_drawing.open();

    const auto rows = compareDimStyles(styleOf(m_database, "A"), styleOf(m_database, "B"), true);

    std::string keys;
    for (const DimStylePropertyRow &row : rows) {
        keys += row.key.mid(row.key.startsWith(QLatin1String("DIM")) ? 3 : 0).toStdString() + ' ';
    }
    EXPECT_EQ(rows.size(), 79U);
    EXPECT_EQ(keys,
              "ADEC ALT ALTD ALTF ALTRND ALTTD ALTTZ ALTU ALTZ APOST ASZ ATFIT AUNIT AZIN BLK BLK1 "
              "BLK2 CEN CLRD CLRE CLRT DEC DLE DLI DSEP EXE EXO FRAC GAP JUST LDRBLK LFAC LIM "
              "LUNIT LWD LWE POST RND SAH SCALE SD1 SD2 SE1 SE2 SOXD TAD TDEC TFAC TIH TIX TM "
              "TMOVE TOFL TOH TOL TOLJ TP TSZ TVP TXSTY TXT TZIN UPT ZIN FXL FXLON JOGANG TFILL "
              "TFILLCLR ARCSYM LTYPE LTEX1 LTEX2 TXTDIRECTION MZF MZS ALTMZF ALTMZS ANNOTATIVE ");
}

TEST_F(DimStyleComparison, RealsAgreeWhenTheyPrintTheSame)
{
    m_drawing.dimStyle("A").group(41, 0.18).group(42, 0.18);
    m_drawing.dimStyle("B").group(41, "0.18000001").group(42, "0.1801");

    EXPECT_EQ(compared(), "DIMEXO: 0.18 -> 0.1801\n");
}

TEST_F(DimStyleComparison, FromAMillionOnFiveDigitsCount)
{
    m_drawing.dimStyle("A").group(40, 1000000.0).group(41, 1000000.0);
    m_drawing.dimStyle("B").group(40, 1000049.0).group(41, 1000051.0);

    EXPECT_EQ(compared(), "DIMASZ: 1.0000E+06 -> 1.0001E+06\n");
}

TEST_F(DimStyleComparison, ZeroDiffersFromASmallNegativeNumber)
{
    m_drawing.dimStyle("A").group(48, 0.0);
    m_drawing.dimStyle("B").group(48, "-0.00001");

    EXPECT_EQ(compared(), "DIMTM: 0.0 -> -0.0\n");
}

TEST_F(DimStyleComparison, SignedNumbersKeepTheirSignAndUnsignedOnesHaveNone)
{
    m_drawing.dimStyle("A").group(179, -1).group(171, -1).group(78, -1);
    m_drawing.dimStyle("B");

    EXPECT_EQ(compared(),
              "DIMADEC: -1 -> 0\n"
              "DIMALTD: 65535 -> 2\n"
              "DIMZIN: 255 -> 0\n");
}

TEST_F(DimStyleComparison, AnArrowInOtherLettersDiffers)
{
    m_drawing.block("_Dot");
    m_drawing.dimStyle("A").handleOf(342, "BLOCK_RECORD", "_Dot");
    CKvDrawingBuilder other("AC1032");
    other.block("_DOT");
    other.dimStyle("B").handleOf(342, "BLOCK_RECORD", "_DOT");
    const OdDbDatabasePtr first = m_drawing.open();
    const OdDbDatabasePtr second = other.open();

    EXPECT_EQ(rowsText(compareDimStyles(styleOf(first, "A"), styleOf(second, "B"), false)),
              "DIMBLK: _Dot -> _DOT\n");
}

TEST_F(DimStyleComparison, ADefaultArrowEqualsAnotherDefaultArrowOnly)
{
    m_drawing.block("_Dot");
    m_drawing.dimStyle("A").group(342, "0");
    m_drawing.dimStyle("B").handleOf(343, "BLOCK_RECORD", "_Dot");

    EXPECT_EQ(compared(), "DIMBLK1: Null -> _Dot\n");
}

TEST_F(DimStyleComparison, UnknownLineweightsAreOneAndTheSame)
{
    m_drawing.dimStyle("A").group(371, 7).group(372, 7);
    m_drawing.dimStyle("B").group(371, 33).group(372, 25);

    EXPECT_EQ(compared(), "DIMLWE:  -> 0.25 mm\n");
}

TEST_F(DimStyleComparison, TextsAreComparedWithRegardToCaseAndAnEmptyOneShowsAsQuotes)
{
    m_drawing.dimStyle("A").group(3, "mm").group(4, "");
    m_drawing.dimStyle("B").group(3, "MM").group(4, " ");

    EXPECT_EQ(compared(), "DIMAPOST: \"\" ->  \nDIMPOST: mm -> MM\n");
}

TEST_F(DimStyleComparison, AnnotativeIsTheLastRow)
{
    m_drawing.dimStyle("A").annotative(1);
    m_drawing.dimStyle("B").annotative(0);

    EXPECT_EQ(compared(), "ANNOTATIVE: true -> false\n");
}

TEST_F(DimStyleComparison, TheNameIsNotCompared)
{
    m_drawing.dimStyle("A");
    m_drawing.dimStyle("B");

    EXPECT_EQ(compared(), "");
}

TEST_F(DimStyleComparison, ADifferenceWithoutALabelIsReportedLikeAnyOther)
{
    m_drawing.dimStyle("A").extendedData("KVSTANDARDS", { { 1000, "DIMMZF" }, { 1040, 50.0 } });
    m_drawing.dimStyle("B");

    EXPECT_EQ(compared(), "DIMMZF: 50.0 -> 100.0\n");
}

TEST(DimStylePropertyLabel, IsFoundInAnyLetterCase)
{
    EXPECT_EQ(dimStylePropertyLabel(CKvString("DIMADEC")), CKvString("Angle precision"));
    EXPECT_EQ(dimStylePropertyLabel(CKvString("DIMadec")), CKvString("Angle precision"));
    EXPECT_EQ(dimStylePropertyLabel(CKvString("annotative")), CKvString("Annotative"));
}

TEST(DimStylePropertyLabel, DimtadAndDimtvpShareOne)
{
    EXPECT_EQ(dimStylePropertyLabel(CKvString("DIMTAD")), CKvString("Text pos vert"));
    EXPECT_EQ(dimStylePropertyLabel(CKvString("DIMTVP")), CKvString("Text pos vert"));
}

TEST(DimStylePropertyLabel, AnUnknownKeyHasNone)
{
    EXPECT_EQ(dimStylePropertyLabel(CKvString("DIMFIT")), CKvString());
    EXPECT_EQ(dimStylePropertyLabel(CKvString()), CKvString());
    EXPECT_EQ(dimStylePropertyLabel(CKvString("DIMTXTDIRECTION")), CKvString());
}

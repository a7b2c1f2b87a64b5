// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbDimStyleTable.h"
#include "OdDbDimStyleTableRecord.h"
#include "drawingText.h"

#include <gtest/gtest.h>

namespace
{

constexpr double kPi = 3.14159265358979323846;

class DimStyleRecord : public testing::Test
{
protected:
    OdDbDimStyleTableRecordPtr openStyle(OdDb::OpenMode mode = OdDb::kForRead)
    {
        if (!m_database) {
            m_database = m_drawing.open();
        }
        return OdDbDimStyleTableRecordPtr(
            recordId(m_database->getDimStyleTableId(), "S").openObject(mode));
    }
    /// The lines of the style in the file as it would be saved, from behind its name on.
    std::string savedStyle() const
    {
        const QByteArray file = CKvDrawingFile::toBytes(*m_database);
        const int name = file.indexOf("\nS\n", file.indexOf("\nDIMSTYLE\n")) + 3;
        const int end = file.indexOf("\n  0\n", name);
        return file.mid(name, end - name + 1).replace("\n", " ").simplified().toStdString();
    }
    OdDbObjectId block(const char *name) const
    {
        return recordId(m_database->getBlockTableId(), name);
    }

    CKvDrawingBuilder m_drawing { "AC1032" };
    OdDbDatabasePtr m_database;
};

} // namespace

TEST_F(DimStyleRecord, OfTwoGroupsOfACodeTheLastCounts)
{
    m_drawing.dimStyle("S").group(41, 1.5).group(41, 2.5);

    openStyle(OdDb::kForWrite)->setDimasz(3.5);

    EXPECT_EQ(openStyle()->dimasz(), 3.5);
    EXPECT_EQ(savedStyle(), "70 0 41 1.5 41 3.5");
}

TEST_F(DimStyleRecord, ASetterNeedsTheStyleOpenForWriting)
{
    m_drawing.dimStyle("S");

    EXPECT_THROW(openStyle()->setDimasz(3.5), OdError_NotOpenForWrite);
    EXPECT_THROW(openStyle()->setDimblk(OdDbObjectId()), OdError_NotOpenForWrite);
    EXPECT_THROW(openStyle()->setDimclrd(OdCmColor()), OdError_NotOpenForWrite);
}

TEST_F(DimStyleRecord, ANewGroupStandsInTheOrderOfTheCodesBehindTheFlags)
{
    m_drawing.dimStyle("S").group(40, 2.5).group(140, 3.5).group(340, "0");
    const OdDbDimStyleTableRecordPtr style = openStyle(OdDb::kForWrite);

    style->setDimpost(OdString("<>"));
    style->setDimlwd(OdDb::LineWeight(25));
    style->setDimclrd(OdCmColor::byIndex(1));
    style->setDimtfillclr(OdCmColor::byIndex(3));

    EXPECT_EQ(savedStyle(), "70 0 3 <> 40 2.5 70 3 140 3.5 176 1 340 0 371 25");
}

TEST_F(DimStyleRecord, AValueThatIsThereAlreadyIsLeftAsItIsSpelled)
{
    m_drawing.dimStyle("S").group(41, "2.50");
    const OdDbDimStyleTableRecordPtr style = openStyle(OdDb::kForWrite);

    style->setDimasz(2.5);
    style->setDimexo(0.0625);
    style->setDimblk(OdDbObjectId());

    EXPECT_FALSE(CKvDrawingFile::isChanged(*m_database));
}

TEST_F(DimStyleRecord, TheJogAngleIsInDegreesInTheFileAndInRadiansOutside)
{
    m_drawing.dimStyle("S").group(50, 90.0);

    EXPECT_DOUBLE_EQ(openStyle()->dimjogang(), kPi / 2);
    openStyle(OdDb::kForWrite)->setDimjogang(kPi / 6);
    EXPECT_DOUBLE_EQ(openStyle()->dimjogang(), kPi / 6);
    EXPECT_EQ(savedStyle(), "70 0 50 30.0");
}

TEST_F(DimStyleRecord, ThePlainSecondFlagsGroupIsTheBackgroundColor)
{
    m_drawing.dimStyle("S").flags(16).group(70, 5);

    EXPECT_TRUE(openStyle()->isDependent());
    EXPECT_EQ(openStyle()->dimtfillclr(), OdCmColor::byIndex(5));
}

TEST_F(DimStyleRecord, WithoutFlagsTheBackgroundColorBringsThem)
{
    m_drawing.dimStyle("S").without(70);

    openStyle(OdDb::kForWrite)->setDimtfillclr(OdCmColor::byIndex(5));

    EXPECT_EQ(savedStyle(), "70 0 70 5");
}

TEST_F(DimStyleRecord, ATrueColorIsWrittenAsTheNearestIndex)
{
    m_drawing.dimStyle("S");
    const OdDbDimStyleTableRecordPtr style = openStyle(OdDb::kForWrite);

    style->setDimtfillclr(OdCmColor::byColor(250, 5, 5, 7));
    style->setDimclrt(OdCmColor::byColor(120, 130, 125, 7));
    style->setDimclrd(OdCmColor::byColor(255, 127, 0, 7));

    EXPECT_EQ(style->dimtfillclr(), OdCmColor::byIndex(1));
    EXPECT_EQ(style->dimclrt(), OdCmColor::byIndex(8));
    EXPECT_EQ(style->dimclrd(), OdCmColor::byIndex(30));
}

TEST_F(DimStyleRecord, ANameInPlaceOfAHandleIsLookedUp)
{
    m_drawing.textStyle("NOTES");
    m_drawing.lineStyle("DASHED");
    m_drawing.block("_DOT");
    m_drawing.dimStyle("S").group(340, "notes").group(342, "_dot").group(345, "dashed");

    EXPECT_EQ(nameOf(openStyle()->dimtxsty()), "NOTES");
    EXPECT_EQ(nameOf(openStyle()->dimblk()), "_DOT");
    EXPECT_EQ(nameOf(openStyle()->dimltype()), "DASHED");
}

TEST_F(DimStyleRecord, WhatNamesNothingIsNull)
{
    m_drawing.textStyle("NOTES");
    m_drawing.dimStyle("S")
        .group(340, "")
        .group(341, "0")
        .group(342, "GONE")
        .group(343, "FFFF")
        .handleOf(344, "STYLE", "NOTES")
        .group(345, "000");

    const OdDbDimStyleTableRecordPtr style = openStyle();

    EXPECT_TRUE(style->dimtxsty().isNull());
    EXPECT_TRUE(style->dimldrblk().isNull());
    EXPECT_TRUE(style->dimblk().isNull());
    EXPECT_TRUE(style->dimblk1().isNull());
    EXPECT_TRUE(style->dimblk2().isNull());
    EXPECT_TRUE(style->dimltype().isNull());
}

TEST_F(DimStyleRecord, AnErasedObjectAndOneOfAnotherDrawingAreNull)
{
    m_drawing.textStyle("NOTES");
    m_drawing.textStyle("OTHER");
    m_drawing.dimStyle("S").handleOf(340, "STYLE", "NOTES");
    const OdDbDatabasePtr elsewhere = m_drawing.open();
    const OdDbDimStyleTableRecordPtr style = openStyle(OdDb::kForWrite);

    recordId(m_database->getTextStyleTableId(), "NOTES").openObject(OdDb::kForWrite)->erase();
    EXPECT_TRUE(style->dimtxsty().isNull());
    style->setDimtxsty(recordId(m_database->getTextStyleTableId(), "OTHER"));
    EXPECT_EQ(nameOf(style->dimtxsty()), "OTHER");
    style->setDimtxsty(recordId(elsewhere->getTextStyleTableId(), "NOTES"));

    EXPECT_TRUE(style->dimtxsty().isNull());
    EXPECT_EQ(savedStyle(), "70 0 340 0");
}

TEST_F(DimStyleRecord, R14NamesTheArrowsWithOrWithoutTheUnderscore)
{
    m_drawing = CKvDrawingBuilder("AC1014");
    m_drawing.block("_DOT");
    m_drawing.block("TICK");
    m_drawing.block("_TICK");
    m_drawing.textStyle("NOTES");
    m_drawing.dimStyle("S").group(5, "dot").group(6, "TICK").group(7, "").handleOf(
        340, "STYLE", "NOTES");

    EXPECT_EQ(nameOf(openStyle()->dimblk()), "_DOT");
    EXPECT_EQ(nameOf(openStyle()->dimblk1()), "TICK");
    EXPECT_TRUE(openStyle()->dimblk2().isNull());
    EXPECT_EQ(nameOf(openStyle()->dimtxsty()), "NOTES");
    openStyle(OdDb::kForWrite)->setDimblk2(block("_TICK"));
    openStyle(OdDb::kForWrite)->setDimblk1(OdDbObjectId());
    EXPECT_EQ(nameOf(openStyle()->dimblk2()), "_TICK");
    EXPECT_TRUE(openStyle()->dimblk1().isNull());
    EXPECT_NE(savedStyle().find(" 5 dot 6 7 _TICK"), std::string::npos);
}

TEST_F(DimStyleRecord, R12KnowsBlocksThatHaveNoRecordsAndTheTextStyleStandard)
{
    m_drawing = CKvDrawingBuilder("AC1009");
    m_drawing.textStyle("STANDARD");
    m_drawing.block("_DOT");
    m_drawing.dimStyle("S").group(5, "DOT");

    EXPECT_EQ(nameOf(openStyle()->dimblk()), "_DOT");
    EXPECT_EQ(nameOf(openStyle()->dimtxsty()), "STANDARD");
}

TEST_F(DimStyleRecord, WhatTheVersionHasNoPlaceForIsNotWritten)
{
    m_drawing = CKvDrawingBuilder("AC1009");
    m_drawing.textStyle("STANDARD");
    m_drawing.textStyle("NOTES");
    m_drawing.block("_DOT");
    m_drawing.dimStyle("S");
    const OdDbDimStyleTableRecordPtr style = openStyle(OdDb::kForWrite);

    style->setDimdec(2);
    style->setDimlwd(OdDb::LineWeight(25));
    style->setDimtxtdirection(true);
    style->setDimldrblk(block("_DOT"));
    style->setDimtxsty(recordId(m_database->getTextStyleTableId(), "NOTES"));

    EXPECT_FALSE(CKvDrawingFile::isChanged(*m_database));
    style->setDimalt(true);
    EXPECT_EQ(savedStyle(), "70 0 170 1");
}

TEST_F(DimStyleRecord, NewerSettingsOfOlderDrawingsAreReadFromExtendedData)
{
    m_drawing = CKvDrawingBuilder("AC1015");
    m_drawing.lineStyle("DASHED").handle("ABC");
    m_drawing.dimStyle("S")
        .extendedData("ACAD_DSTYLE_DIMTEXT_FILL",
                      { { 1070, 376 },
                        { 1070, 2 },
                        { 1070, 377 },
                        { 1004, "1800000001000000427536C2000000000000000000000000" } })
        .extendedData("acad_dstyle_dimext_length", { { 1070, 378 }, { 1040, 7.5 } })
        .extendedData("ACAD_DSTYLE_DIMARC_LENGTH_SYMBOL", { { 1070, 379 }, { 1070, 1 } })
        .extendedData("ACAD_DSTYLE_DIM_LINETYPE", { { 1070, 380 }, { 1005, "ABC" } })
        .extendedData("ACAD_DSTYLE_DIM_EXT1_LINETYPE", { { 1070, 381 }, { 1005, "ABC" } })
        .extendedData("ACAD_DSTYLE_DIM_EXT2_LINETYPE", { { 1070, 382 }, { 1005, "0" } })
        .extendedData("ACAD_DSTYLE_DIMEXT_ENABLED", { { 1070, 383 }, { 1070, 1 } })
        .extendedData("ACAD_DSTYLE_DIMJOGGED_JOGANGLE_SYMBOL", { { 1070, 384 }, { 1040, 1.25 } });

    const OdDbDimStyleTableRecordPtr style = openStyle();

    EXPECT_EQ(style->dimtfill(), 2);
    EXPECT_EQ(style->dimtfillclr(), OdCmColor::byColor(0x36, 0x75, 0x42, 7));
    EXPECT_EQ(style->dimfxl(), 7.5);
    EXPECT_EQ(style->dimarcsym(), 1);
    EXPECT_EQ(nameOf(style->dimltype()), "DASHED");
    EXPECT_EQ(nameOf(style->dimltex1()), "DASHED");
    EXPECT_TRUE(style->dimltex2().isNull());
    EXPECT_TRUE(style->dimfxlon());
    EXPECT_EQ(style->dimjogang(), 1.25);
}

TEST_F(DimStyleRecord, APlainGroupWinsOverExtendedData)
{
    m_drawing = CKvDrawingBuilder("AC1018");
    m_drawing.dimStyle("S").group(69, 1).extendedData("ACAD_DSTYLE_DIMTEXT_FILL",
                                                      { { 1070, 376 }, { 1070, 2 } });

    EXPECT_EQ(openStyle()->dimtfill(), 1);
    openStyle(OdDb::kForWrite)->setDimtfill(0);
    EXPECT_EQ(openStyle()->dimtfill(), 0);
    EXPECT_NE(savedStyle().find("69 0 1001 ACAD_DSTYLE_DIMTEXT_FILL 1070 376 1070 2"),
              std::string::npos);
}

TEST_F(DimStyleRecord, FromR2007OnExtendedDataIsKeptAndNotRead)
{
    m_drawing = CKvDrawingBuilder("AC1021");
    m_drawing.dimStyle("S").extendedData("ACAD_DSTYLE_DIMTEXT_FILL",
                                         { { 1070, 376 }, { 1070, 2 } });

    EXPECT_EQ(openStyle()->dimtfill(), 0);
    openStyle(OdDb::kForWrite)->setDimtfill(1);
    EXPECT_EQ(savedStyle(), "70 0 69 1 1001 ACAD_DSTYLE_DIMTEXT_FILL 1070 376 1070 2");
}

TEST_F(DimStyleRecord, NewerSettingsOfOlderDrawingsAreWrittenToExtendedData)
{
    m_drawing = CKvDrawingBuilder("AC1015");
    m_drawing.lineStyle("DASHED").handle("ABC");
    m_drawing.dimStyle("S").extendedData("ACAD_DSTYLE_DIMTEXT_FILL",
                                         { { 1070, 376 }, { 1070, 2 } });
    OdDbDimStyleTableRecordPtr style = openStyle(OdDb::kForWrite);

    style->setDimtfill(1);
    style->setDimtfillclr(OdCmColor::byColor(1, 2, 3, 7));
    style->setDimfxl(7.5);
    style->setDimltype(recordId(m_database->getLinetypeTableId(), "DASHED"));
    style->setDimjogang(1.25);

    EXPECT_EQ(savedStyle(),
              "70 0 1001 ACAD_DSTYLE_DIMTEXT_FILL 1070 376 1070 1 1070 377 1004 "
              "1800000001000000030201C2000000000000000000000000 "
              "1001 ACAD_DSTYLE_DIMEXT_LENGTH 1070 378 1040 7.5 "
              "1001 ACAD_DSTYLE_DIM_LINETYPE 1070 380 1005 ABC "
              "1001 ACAD_DSTYLE_DIMJOGGED_JOGANGLE_SYMBOL 1070 384 1040 1.25");
    EXPECT_TRUE(
        CKvDrawingFile::toBytes(*m_database).contains("\nACAD_DSTYLE_DIMEXT_LENGTH\n 70\n"));
    style.release();
    m_database = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*m_database));
    EXPECT_EQ(openStyle()->dimtfillclr(), OdCmColor::byColor(1, 2, 3, 7));
    EXPECT_EQ(nameOf(openStyle()->dimltype()), "DASHED");
}

TEST_F(DimStyleRecord, TheBackgroundColorInExtendedDataKnowsAllMethods)
{
    m_drawing = CKvDrawingBuilder("AC1015");
    m_drawing.dimStyle("S");
    for (const OdCmColor &color :
         { OdCmColor(), OdCmColor::byIndex(30), OdCmColor::byColor(9, 8, 7, 1) }) {
        openStyle(OdDb::kForWrite)->setDimtfillclr(color);

        EXPECT_EQ(openStyle()->dimtfillclr(), color);
    }
    openStyle(OdDb::kForWrite)->setDimtfillclr(OdCmColor::byIndex(0));
    EXPECT_TRUE(openStyle()->dimtfillclr().isByBlock());
}

TEST_F(DimStyleRecord, SettingsWithoutAGroupAreKeptUnderANameOfThisHost)
{
    m_drawing.dimStyle("S").extendedData("OTHER", { { 1000, "DIMMZF" }, { 1040, 9.0 } });
    const OdDbDimStyleTableRecordPtr style = openStyle(OdDb::kForWrite);

    style->setDimmzf(50.5);
    style->setDimmzs(OdString("DIMALTMZF"));
    style->setDimaltmzs(OdString("in"));

    EXPECT_EQ(style->dimmzf(), 50.5);
    EXPECT_EQ(style->dimmzs(), OdString("DIMALTMZF"));
    EXPECT_EQ(style->dimaltmzf(), 100.0);
    EXPECT_EQ(style->dimaltmzs(), OdString("in"));
    EXPECT_EQ(savedStyle(),
              "70 0 1001 OTHER 1000 DIMMZF 1040 9.0 1001 KVSTANDARDS 1000 DIMMZF 1040 50.5 "
              "1000 DIMMZS 1000 DIMALTMZF 1000 DIMALTMZS 1000 in");
}

TEST_F(DimStyleRecord, ANewStyleTakesItsValuesIntoADrawing)
{
    m_database = m_drawing.open();
    OdDbDimStyleTableRecordPtr style = OdDbDimStyleTableRecord::createObject();
    style->setName(OdString("S"));
    style->setDimasz(2.5);

    OdDbDimStyleTablePtr(m_database->getDimStyleTableId().openObject(OdDb::kForWrite))->add(style);
    style.release();

    m_database = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*m_database));
    EXPECT_EQ(openStyle()->dimasz(), 2.5);
    EXPECT_EQ(openStyle()->dimexo(), 0.0625);
}

TEST_F(DimStyleRecord, TextsAreInTheEncodingOfTheDrawing)
{
    m_drawing = CKvDrawingBuilder("AC1015");
    m_drawing.dimStyle("S").group(3, "<> µm");

    EXPECT_EQ(openStyle()->dimpost(), OdString(QStringLiteral("<> µm")));
    openStyle(OdDb::kForWrite)->setDimpost(OdString(QStringLiteral("<> Ω")));
    EXPECT_EQ(openStyle()->dimpost(), OdString(QStringLiteral("<> Ω")));
    EXPECT_NE(savedStyle().find("<> \\U+03A9"), std::string::npos);
}

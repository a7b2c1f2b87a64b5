// SPDX-License-Identifier: MIT
#include "CKvDimStyleTest.h"
#include "CKvDrawingFile.h"
#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"

namespace
{

std::string contentsOf(const OdDbDatabasePtr &drawing, const char *block)
{
    std::string text;
    const OdDbBlockTableRecordPtr record(recordId(drawing->getBlockTableId(), block).openObject());
    if (!record) {
        return "-";
    }
    for (auto entities = record->newIterator(); !entities->done(); entities->step()) {
        text += entities->entity()->isA()->dxfName().toQString().toStdString() + ' ';
    }
    return text;
}

class DimStylePointerRepair : public CKvDimStyleTest
{
protected:
    DimStylePointerRepair()
    {
        m_drawing.withReservedLineStyles();
        m_office.withReservedLineStyles();
    }
    /// Saves the drawing and reads it anew.
    void reopen() { m_database = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*m_database)); }
};

} // namespace

TEST_F(DimStylePointerRepair, MissingArrowsAreClonedWithTheirContents)
{
    m_office.block("_Dot").line();
    m_office.block("Tick").text("x");
    m_office.dimStyle("OFFICE")
        .handleOf(342, "BLOCK_RECORD", "_Dot")
        .handleOf(343, "BLOCK_RECORD", "Tick")
        .handleOf(341, "BLOCK_RECORD", "_Dot");
    m_drawing.dimStyle("OFFICE");
    report();

    repair("OFFICE", "OFFICE");

    EXPECT_EQ(differences("OFFICE", "OFFICE"), "");
    EXPECT_EQ(contentsOf(m_database, "_Dot"), "LINE ");
    EXPECT_EQ(contentsOf(m_database, "Tick"), "TEXT ");
    EXPECT_EQ(nameOf(m_database->getDIMBLK()), "_Dot");
    EXPECT_EQ(nameOf(m_database->getDIMBLK1()), "Tick");
    EXPECT_TRUE(m_database->getDIMBLK2().isNull());
    EXPECT_EQ(nameOf(m_database->getDIMLDRBLK()), "_Dot");
    reopen();
    EXPECT_EQ(differences("OFFICE", "OFFICE"), "");
    EXPECT_EQ(contentsOf(m_database, "_Dot"), "LINE ");
    EXPECT_EQ(contentsOf(m_database, "Tick"), "TEXT ");
}

TEST_F(DimStylePointerRepair, ASecondRepairFindsTheArrowsAndClonesNothing)
{
    m_office.block("_Dot").line();
    m_office.dimStyle("OFFICE").handleOf(342, "BLOCK_RECORD", "_Dot");
    m_drawing.dimStyle("OFFICE");
    report();
    repair("OFFICE", "OFFICE");
    const std::string once = blocks();
    const QByteArray bytes = CKvDrawingFile::toBytes(*m_database);

    repair("OFFICE", "OFFICE");

    EXPECT_EQ(blocks(), once);
    EXPECT_EQ(CKvDrawingFile::toBytes(*m_database), bytes);
}

TEST_F(DimStylePointerRepair, ABlockOfTheSameNameStaysWhateverItHolds)
{
    m_drawing.block("_DOT").text("other").layer("0");
    m_drawing.dimStyle("OFFICE");
    m_office.block("_DOT").line();
    m_office.dimStyle("OFFICE").handleOf(342, "BLOCK_RECORD", "_DOT");
    report();

    repair("OFFICE", "OFFICE");

    EXPECT_EQ(contentsOf(m_database, "_DOT"), "TEXT ");
    EXPECT_EQ(differences("OFFICE", "OFFICE"), "");
}

TEST_F(DimStylePointerRepair, ADefaultArrowComesOverAsNone)
{
    m_drawing.block("_Dot");
    m_drawing.header("DIMBLK", 1, "_Dot").header("DIMLDRBLK", 1, "GONE");
    m_drawing.dimStyle("OFFICE")
        .handleOf(342, "BLOCK_RECORD", "_Dot")
        .handleOf(343, "BLOCK_RECORD", "_Dot")
        .handleOf(344, "BLOCK_RECORD", "_Dot")
        .handleOf(341, "BLOCK_RECORD", "_Dot");
    m_office.dimStyle("OFFICE");
    report();

    repair("OFFICE", "OFFICE");

    EXPECT_EQ(differences("OFFICE", "OFFICE"), "");
    EXPECT_TRUE(m_database->getDIMBLK().isNull());
    EXPECT_TRUE(CKvDrawingFile::toBytes(*m_database).contains("$DIMLDRBLK\n  1\n\n"));
}

TEST_F(DimStylePointerRepair, TextAndLineStylesAreBroughtOver)
{
    m_drawing = CKvDrawingBuilder("AC1032");
    m_drawing.withReservedLineStyles();
    m_office = CKvDrawingBuilder("AC1032");
    m_office.withReservedLineStyles();
    m_office.textStyle("Notes").font("romans").height(2.5);
    m_office.lineStyle("Dashed").dashes({ 1.0, -0.5 });
    m_office.lineStyle("Center").dashes({ 2.0, -0.5 });
    m_office.dimStyle("OFFICE")
        .handleOf(340, "STYLE", "Notes")
        .handleOf(345, "LTYPE", "Dashed")
        .handleOf(346, "LTYPE", "Center")
        .handleOf(347, "LTYPE", "Continuous");
    m_drawing.dimStyle("OFFICE");
    report();

    repair("OFFICE", "OFFICE");
    reopen();

    EXPECT_EQ(differences("OFFICE", "OFFICE"), "");
    EXPECT_EQ(namesText(m_database->getTextStyleTableId()), "Notes\n");
    EXPECT_EQ(namesText(m_database->getLinetypeTableId()),
              "ByBlock\nByLayer\nContinuous\nDashed\nCenter\n");
    EXPECT_EQ(nameOf(m_database->getDIMTXSTY()), "Notes");
    EXPECT_EQ(nameOf(m_database->getDIMLTYPE()), "Dashed");
    EXPECT_EQ(nameOf(m_database->getDIMLTEX1()), "Center");
    EXPECT_EQ(nameOf(m_database->getDIMLTEX2()), "Continuous");
}

TEST_F(DimStylePointerRepair, StylesOfTheDrawingAreFoundByNameWhateverTheLetterCase)
{
    m_drawing.textStyle("NOTES").font("txt");
    m_drawing.dimStyle("OFFICE");
    m_office.textStyle("Notes").font("romans");
    m_office.dimStyle("OFFICE").handleOf(340, "STYLE", "Notes");
    report();

    repair("OFFICE", "OFFICE");

    EXPECT_EQ(namesText(m_database->getTextStyleTableId()), "NOTES\n");
    // The comparison regards the letters, so this is still told apart.
    EXPECT_EQ(differences("OFFICE", "OFFICE"), "DIMTXSTY: NOTES -> Notes\n");
}

TEST_F(DimStylePointerRepair, AStyleOfR2000KeepsNewerLineStylesInExtendedData)
{
    m_office = CKvDrawingBuilder("AC1032");
    m_office.lineStyle("Dashed").dashes({ 1.0, -0.5 });
    m_office.dimStyle("OFFICE").handleOf(345, "LTYPE", "Dashed").group(69, 1).group(70, 3);
    m_drawing.dimStyle("OFFICE");
    report();

    repair("OFFICE", "OFFICE");
    reopen();

    EXPECT_EQ(differences("OFFICE", "OFFICE"), "");
    EXPECT_TRUE(CKvDrawingFile::toBytes(*m_database).contains("ACAD_DSTYLE_DIM_LINETYPE"));
}

TEST_F(DimStylePointerRepair, AStyleOfR14NamesItsArrows)
{
    m_drawing = CKvDrawingBuilder("AC1014");
    m_drawing.withReservedLineStyles();
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.block("_Dot").line();
    m_office.dimStyle("OFFICE").group(41, 3.5).handleOf(342, "BLOCK_RECORD", "_Dot");
    report();

    repair("OFFICE", "OFFICE");
    reopen();

    EXPECT_EQ(differences("OFFICE", "OFFICE"), "");
    EXPECT_EQ(contentsOf(m_database, "_Dot"), "LINE ");
}

TEST_F(DimStylePointerRepair, AStyleOfR12NamesItsArrowsAndHasNoBlockRecords)
{
    m_drawing = CKvDrawingBuilder("AC1009");
    m_drawing.textStyle("Standard");
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.textStyle("Standard");
    m_office.block("_Dot").line();
    m_office.dimStyle("OFFICE")
        .group(41, 3.5)
        .handleOf(342, "BLOCK_RECORD", "_Dot")
        .handleOf(340, "STYLE", "Standard");
    report();

    repair("OFFICE", "OFFICE");
    reopen();

    EXPECT_EQ(differences("OFFICE", "OFFICE"), "");
    EXPECT_EQ(contentsOf(m_database, "_Dot"), "LINE ");
    EXPECT_FALSE(CKvDrawingFile::toBytes(*m_database).contains("BLOCK_RECORD"));
}

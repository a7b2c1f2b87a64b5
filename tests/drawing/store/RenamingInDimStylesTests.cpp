// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbDimStyleTable.h"
#include "OdDbDimStyleTableRecord.h"
#include "drawingText.h"

#include <gtest/gtest.h>

namespace
{

class RenamingInDimStyles : public testing::Test
{
protected:
    void rename(OdDbObjectId tableId, const char *from, const char *to)
    {
        const OdDbSymbolTableRecordPtr record(recordId(tableId, from).openObject(OdDb::kForWrite));
        record->setName(OdString(to));
    }
    OdDbDimStyleTableRecordPtr style() const
    {
        return OdDbDimStyleTableRecordPtr(
            recordId(m_database->getDimStyleTableId(), "S").openObject());
    }
    OdDbObjectId block(const char *name) const
    {
        return recordId(m_database->getBlockTableId(), name);
    }
    void saveAndOpenAgain()
    {
        m_database = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*m_database));
    }

    OdDbDatabasePtr m_database;
};

} // namespace

TEST_F(RenamingInDimStyles, OlderStylesFollowTheArrowBlocksThatTheyName)
{
    for (const char *version : { "AC1009", "AC1014" }) {
        SCOPED_TRACE(version);
        CKvDrawingBuilder drawing(version);
        drawing.block("TICK").line();
        drawing.block("_DOT").line();
        drawing.dimStyle("S").group(5, "TICK").group(6, "dot").group(7, "OTHER");
        m_database = drawing.open();

        rename(m_database->getBlockTableId(), "TICK", "OFFICE-TICK");
        rename(m_database->getBlockTableId(), "_DOT", "OFFICE-DOT");
        saveAndOpenAgain();

        EXPECT_EQ(style()->dimblk(), block("OFFICE-TICK"));
        EXPECT_EQ(style()->dimblk1(), block("OFFICE-DOT"));
        const QByteArray saved = CKvDrawingFile::toBytes(*m_database);
        EXPECT_TRUE(saved.contains("\n  7\nOTHER\n"));
        EXPECT_FALSE(saved.contains("\nTICK\n"));
    }
}

TEST_F(RenamingInDimStyles, ANameThatMeansAnotherBlockStays)
{
    CKvDrawingBuilder drawing("AC1014");
    drawing.block("_DOT").line();
    drawing.block("DOT").line();
    drawing.dimStyle("S").group(5, "DOT");
    m_database = drawing.open();

    rename(m_database->getBlockTableId(), "_DOT", "OFFICE-DOT");

    EXPECT_EQ(style()->dimblk(), block("DOT"));
}

TEST_F(RenamingInDimStyles, HandlesStayAndNamesInTheirPlaceFollow)
{
    CKvDrawingBuilder drawing("AC1032");
    drawing.withDefaults();
    drawing.textStyle("NOTES");
    drawing.block("TICK").line();
    drawing.dimStyle("S").group(340, "NOTES").group(342, "TICK");
    m_database = drawing.open();

    rename(m_database->getBlockTableId(), "TICK", "OFFICE-TICK");
    rename(m_database->getTextStyleTableId(), "NOTES", "OFFICE-NOTES");
    saveAndOpenAgain();

    EXPECT_EQ(style()->dimblk(), block("OFFICE-TICK"));
    EXPECT_EQ(style()->dimtxsty(), recordId(m_database->getTextStyleTableId(), "OFFICE-NOTES"));
}

TEST_F(RenamingInDimStyles, TheHeaderFollowsWithOrWithoutTheUnderscore)
{
    CKvDrawingBuilder drawing("AC1015");
    drawing.header("DIMBLK", 1, "DOT").header("DIMLDRBLK", 1, "_DOT");
    drawing.block("_DOT").line();
    m_database = drawing.open();

    rename(m_database->getBlockTableId(), "_DOT", "OFFICE-DOT");
    saveAndOpenAgain();

    EXPECT_EQ(m_database->getDIMBLK(), block("OFFICE-DOT"));
    EXPECT_EQ(m_database->getDIMLDRBLK(), block("OFFICE-DOT"));
}

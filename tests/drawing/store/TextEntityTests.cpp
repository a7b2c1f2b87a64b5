// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbArcAlignedText.h"
#include "OdDbAttribute.h"
#include "OdDbAttributeDefinition.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbMText.h"
#include "OdDbObjectIterator.h"
#include "OdDbTable.h"
#include "OdDbText.h"
#include "RText.h"
#include "drawingText.h"

#include <gtest/gtest.h>

namespace
{

class TextEntities : public testing::Test
{
protected:
    TextEntities()
    {
        m_drawing.withDefaults();
        m_drawing.textStyle("NOTES");
        m_drawing.textStyle("TITLES");
    }
    /// The entity at that place in model space.
    OdDbEntityPtr open(int place = 0, OdDb::OpenMode mode = OdDb::kForWrite)
    {
        if (!m_database) {
            m_database = m_drawing.open();
        }
        const OdDbBlockTableRecordPtr space(
            recordId(m_database->getBlockTableId(), "*Model_Space").openObject());
        OdDbObjectIteratorPtr walk = space->newIterator();
        for (int i = 0; i < place; ++i) {
            walk->step();
        }
        return walk->entity(mode);
    }
    OdDbObjectId style(const char *name) const
    {
        return recordId(m_database->getTextStyleTableId(), name);
    }
    /// "TITLES NOTES Standard": the styles of title, header and data rows.
    static std::string rowStyles(const OdDbTablePtr &table)
    {
        return nameOf(table->textStyle(OdDb::kTitleRow)) + ' '
            + nameOf(table->textStyle(OdDb::kHeaderRow)) + ' '
            + nameOf(table->textStyle(OdDb::kDataRow));
    }
    /// What stands from the mark of the table's part to its first cell.
    std::string tableHead() const
    {
        const QByteArray bytes = CKvDrawingFile::toBytes(*m_database);
        const int begin = bytes.indexOf("100\nAcDbTable\n") + 14;
        return bytes.mid(begin, bytes.indexOf("171\n", begin) - begin)
            .replace('\n', ' ')
            .simplified()
            .toStdString();
    }
    CKvEntityBuilder &table(int flags)
    {
        return m_drawing.modelSpace().entity("ACAD_TABLE").group(100, "AcDbTable").group(93, flags);
    }
    CKvDictionaryBuilder &tableStyle()
    {
        return m_drawing.namedObjects()
            .object("TABLESTYLE", "ROOM TABLE")
            .handle("ABC")
            .group(7, "DATA")
            .group(140, 1.0)
            .group(7, "TITLES")
            .group(140, 2.0)
            .group(7, "NOTES")
            .group(140, 3.0);
    }

    CKvDrawingBuilder m_drawing;
    OdDbDatabasePtr m_database;
};

template <class Entity> void expectStyle(const OdDbEntityPtr &entity, const char *expected)
{
    const OdSmartPtr<Entity> text = Entity::cast(entity.get());
    ASSERT_FALSE(text.isNull());
    EXPECT_EQ(nameOf(text->textStyle()), expected);
}

} // namespace

TEST_F(TextEntities, EachKindKnowsItsTextStyle)
{
    m_drawing.modelSpace().text("a").textStyle("notes");
    m_drawing.modelSpace().multilineText("b").textStyle("NOTES");
    m_drawing.modelSpace().entity("ATTDEF").textStyle("NOTES");
    m_drawing.modelSpace().insert("DOOR").attribute("NO", "1").lastChild().textStyle("NOTES");
    m_drawing.modelSpace().entity("ARCALIGNEDTEXT").textStyle("NOTES");
    m_drawing.modelSpace().entity("RTEXT").textStyle("NOTES");
    m_drawing.block("DOOR");

    expectStyle<OdDbText>(open(0), "NOTES");
    expectStyle<OdDbMText>(open(1), "NOTES");
    expectStyle<OdDbText>(open(2), "NOTES");
    expectStyle<OdDbAttributeDefinition>(open(2), "NOTES");
    expectStyle<OdDbText>(open(4), "NOTES");
    expectStyle<OdDbAttribute>(open(4), "NOTES");
    expectStyle<OdDbArcAlignedText>(open(5), "NOTES");
    EXPECT_EQ(nameOf(RText::cast(open(6).get())->textStyleId()), "NOTES");
}

TEST_F(TextEntities, AKindIsNotTakenForAnother)
{
    m_drawing.modelSpace().line();
    m_drawing.modelSpace().text("a");

    EXPECT_TRUE(OdDbText::cast(open(0).get()).isNull());
    EXPECT_TRUE(OdDbMText::cast(open(1).get()).isNull());
    EXPECT_TRUE(OdDbAttribute::cast(open(1).get()).isNull());
    EXPECT_TRUE(OdDbTable::cast(open(1).get()).isNull());
}

TEST_F(TextEntities, AMissingNameIsStandardAndAnUnknownOneStandsForItself)
{
    m_drawing.modelSpace().text("a");
    m_drawing.modelSpace().text("b").textStyle("GONE");

    expectStyle<OdDbText>(open(0), "Standard");
    expectStyle<OdDbText>(open(1), "GONE");
    EXPECT_TRUE(style("GONE").isNull());
}

TEST_F(TextEntities, SettingTheStyleWritesItsName)
{
    m_drawing.modelSpace().text("a").textStyle("NOTES");
    m_drawing.modelSpace().multilineText("b");
    m_drawing.modelSpace().entity("ARCALIGNEDTEXT").textStyle("NOTES");
    m_drawing.modelSpace().entity("RTEXT").textStyle("NOTES");
    open();

    OdDbText::cast(open(0).get())->setTextStyle(style("TITLES"));
    OdDbMText::cast(open(1).get())->setTextStyle(style("TITLES"));
    OdDbArcAlignedText::cast(open(2).get())->setTextStyle(style("TITLES"));
    RText::cast(open(3).get())->setTextStyle(style("TITLES"));

    m_database = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*m_database));
    expectStyle<OdDbText>(open(0), "TITLES");
    expectStyle<OdDbMText>(open(1), "TITLES");
    expectStyle<OdDbArcAlignedText>(open(2), "TITLES");
    EXPECT_EQ(nameOf(RText::cast(open(3).get())->textStyleId()), "TITLES");
}

TEST_F(TextEntities, TheStyleOfAnotherDrawingIsRefused)
{
    CKvDrawingBuilder other;
    other.textStyle("NOTES");
    const OdDbDatabasePtr foreign = other.open();
    m_drawing.modelSpace().text("a");
    const OdDbTextPtr text = OdDbText::cast(open().get());

    EXPECT_THROW(text->setTextStyle(recordId(foreign->getTextStyleTableId(), "NOTES")), OdError);
    EXPECT_THROW(text->setTextStyle(OdDbObjectId()), OdError);
}

TEST_F(TextEntities, TheTextInsideAnAttributeGoesAlongWhereItHadTheSameStyle)
{
    m_drawing.block("DOOR");
    for (const char *inner : { "notes", "TITLES" }) {
        m_drawing.modelSpace()
            .insert("DOOR")
            .attribute("NO", "1")
            .lastChild()
            .textStyle("NOTES")
            .group(101, "Embedded Object")
            .group(1, "1")
            .group(7, inner);
    }
    open();

    OdDbAttribute::cast(open(1).get())->setTextStyle(style("Standard"));
    OdDbAttribute::cast(open(3).get())->setTextStyle(style("Standard"));

    const QByteArray bytes = CKvDrawingFile::toBytes(*m_database);
    EXPECT_EQ(bytes.count("Embedded Object\n  1\n1\n  7\nStandard\n"), 1);
    EXPECT_EQ(bytes.count("Embedded Object\n  1\n1\n  7\nTITLES\n"), 1);
    EXPECT_FALSE(bytes.contains("  7\nNOTES\n"));
}

TEST_F(TextEntities, TheRowsOfATableHaveTheStylesOfItsTableStyle)
{
    tableStyle();
    table(0).group(342, "ABC").group(171, 1).group(7, "CELL");

    EXPECT_EQ(rowStyles(OdDbTablePtr(open())), "TITLES NOTES DATA");
}

TEST_F(TextEntities, ATableWithoutATableStyleIsStandard)
{
    table(0).group(342, "BAD").group(171, 1).group(93, 0xE0000).group(7, "CELL");

    EXPECT_EQ(rowStyles(OdDbTablePtr(open())), "Standard Standard Standard");
}

TEST_F(TextEntities, ATablesOwnStylesWinWhereTheirFlagIsSet)
{
    tableStyle();
    table(0xE0000)
        .group(342, "ABC")
        .group(7, "ONE")
        .group(7, "TWO")
        .group(7, "THREE")
        .group(171, 1);
    table(0x40000)
        .group(342, "ABC")
        .group(7, "ONE")
        .group(7, "TWO")
        .group(7, "THREE")
        .group(171, 1);
    table(0xC0000).group(342, "ABC").group(7, "TWO").group(7, "THREE").group(171, 1);

    EXPECT_EQ(rowStyles(OdDbTablePtr(open(0))), "ONE TWO THREE");
    EXPECT_EQ(rowStyles(OdDbTablePtr(open(1))), "TITLES TWO DATA");
    EXPECT_EQ(rowStyles(OdDbTablePtr(open(2))), "TITLES TWO THREE");
}

TEST_F(TextEntities, SettingTheStyleOfAllRowsWritesThreeNamesAndTheirFlags)
{
    table(0x700018)
        .group(94, 0)
        .group(40, 0.5)
        .group(41, 0.5)
        .group(140, 1.0)
        .group(171, 1)
        .group(93, 6)
        .group(7, "CELL");
    open();

    OdDbTablePtr(open())->setTextStyle(style("TITLES"));

    EXPECT_EQ(tableHead(), "93 8257560 94 0 40 0.5 41 0.5 7 TITLES 7 TITLES 7 TITLES 140 1.0");
    EXPECT_EQ(rowStyles(OdDbTablePtr(open())), "TITLES TITLES TITLES");
    // A cell's own style is its own business.
    EXPECT_TRUE(CKvDrawingFile::toBytes(*m_database).contains(" 93\n6\n  7\nCELL\n"));
}

TEST_F(TextEntities, SettingTheStyleOfSomeRowsLeavesTheOthers)
{
    tableStyle();
    table(0x20000).group(342, "ABC").group(7, "ONE").group(171, 1);
    open();

    OdDbTablePtr(open())->setTextStyle(style("NOTES"), OdDb::kDataRow);

    EXPECT_EQ(tableHead(), "93 655360 7 ONE 7 NOTES 342 ABC");
    EXPECT_EQ(rowStyles(OdDbTablePtr(open())), "ONE NOTES NOTES");
}

TEST_F(TextEntities, ATableWithoutFlagsGetsThem)
{
    m_drawing.modelSpace().entity("ACAD_TABLE").group(100, "AcDbTable").group(171, 1);
    open();

    OdDbTablePtr(open())->setTextStyle(style("NOTES"), OdDb::kTitleRow);

    EXPECT_EQ(rowStyles(OdDbTablePtr(open())), "NOTES Standard Standard");
}

TEST_F(TextEntities, TheStyleOfAnotherDrawingIsRefusedForATableToo)
{
    table(0).group(171, 1);
    const OdDbTablePtr rows(open());

    EXPECT_THROW(rows->setTextStyle(OdDbObjectId()), OdError);
}

TEST_F(TextEntities, ARenameOfStandardNamesItWhereItWasMeantByNoName)
{
    m_drawing.modelSpace().text("a");
    m_drawing.modelSpace().text("b").textStyle("STANDARD");
    m_drawing.modelSpace().text("c").textStyle("NOTES");
    m_drawing.modelSpace().line();
    m_drawing.modelSpace().leader("Standard").without(3);
    open();

    OdDbSymbolTableRecordPtr(style("Standard").openObject(OdDb::kForWrite))
        ->setName(OdString("PLAIN"));
    OdDbSymbolTableRecordPtr(
        recordId(m_database->getDimStyleTableId(), "Standard").openObject(OdDb::kForWrite))
        ->setName(OdString("PLAIN DIM"));

    m_database = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*m_database));
    expectStyle<OdDbText>(open(0), "PLAIN");
    expectStyle<OdDbText>(open(1), "PLAIN");
    expectStyle<OdDbText>(open(2), "NOTES");
    const QByteArray bytes = CKvDrawingFile::toBytes(*m_database);
    EXPECT_EQ(bytes.count("  7\nPLAIN\n"), 3);
    EXPECT_EQ(bytes.count("  3\nPLAIN DIM\n"), 1);
    EXPECT_EQ(nameOf(m_database->getTEXTSTYLE()), "PLAIN");
    EXPECT_EQ(bytes.count("  9\n$DIMSTYLE\n  2\nPLAIN DIM\n"), 1);
}

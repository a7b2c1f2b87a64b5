// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbDictionary.h"
#include "OdDbSymbolTableRecord.h"
#include "auditText.h"
#include "drawingText.h"
#include "valueText.h"

#include <gtest/gtest.h>

namespace
{

class ObjectText : public testing::Test
{
protected:
    OdDbObjectId inDictionary(const char *dictionary, const char *key) const
    {
        const OdDbDictionaryPtr root(m_database->getNamedObjectsDictionaryId().openObject());
        const OdDbDictionaryPtr named(root->getAt(OdString(dictionary), OdDb::kForRead));
        return named ? named->getAt(OdString(key)) : OdDbObjectId();
    }
    static std::string text(OdDbObjectId id)
    {
        return objectIdToText(id).toQString().toStdString();
    }

    CKvDrawingBuilder m_drawing;
    OdDbDatabasePtr m_database;
};

} // namespace

TEST_F(ObjectText, ANullIdIsNull)
{
    EXPECT_EQ(text(OdDbObjectId()), "Null");
}

TEST_F(ObjectText, AnErasedObjectIsNull)
{
    m_drawing.textStyle("NOTES");
    m_database = m_drawing.open();
    const OdDbObjectId id = recordId(m_database->getTextStyleTableId(), "NOTES");

    id.openObject(OdDb::kForWrite)->erase();

    EXPECT_EQ(text(id), "Null");
}

TEST_F(ObjectText, ARecordOfATableIsItsName)
{
    m_drawing.textStyle("Notes");
    m_drawing.lineStyle("dashed");
    m_drawing.block("_Dot");
    m_database = m_drawing.open();

    EXPECT_EQ(text(recordId(m_database->getTextStyleTableId(), "NOTES")), "Notes");
    EXPECT_EQ(text(recordId(m_database->getLinetypeTableId(), "DASHED")), "dashed");
    EXPECT_EQ(text(recordId(m_database->getBlockTableId(), "_DOT")), "_Dot");
}

TEST_F(ObjectText, AMultilineStyleAndAMaterialAreTheirOwnNames)
{
    m_drawing.namedObjects()
        .dictionary("ACAD_MLINESTYLE")
        .object("MLINESTYLE", "WALL-KEY")
        .group(100, "AcDbMlineStyle")
        .group(2, "Wall")
        .group(3, "A wall");
    m_drawing.namedObjects()
        .dictionary("ACAD_MATERIAL")
        .object("MATERIAL", "BRICK-KEY")
        .group(100, "AcDbMaterial")
        .group(1, "Brick");
    m_database = m_drawing.open();

    EXPECT_EQ(text(inDictionary("ACAD_MLINESTYLE", "WALL-KEY")), "Wall");
    EXPECT_EQ(text(inDictionary("ACAD_MATERIAL", "BRICK-KEY")), "Brick");
}

TEST_F(ObjectText, APlotStyleIsItsKeyInTheDictionaryOfPlotStyles)
{
    m_drawing.namedObjects().dictionary("ACAD_PLOTSTYLENAME").object("ACDBPLACEHOLDER", "Normal");
    m_database = m_drawing.open();

    EXPECT_EQ(text(inDictionary("ACAD_PLOTSTYLENAME", "Normal")), "Normal");
}

TEST_F(ObjectText, APlotStyleOutsideTheDictionaryHasNoName)
{
    m_drawing.namedObjects().dictionary("OTHER").object("ACDBPLACEHOLDER", "Normal");
    m_database = m_drawing.open();

    EXPECT_EQ(text(inDictionary("OTHER", "Normal")), "");
    EXPECT_FALSE(inDictionary("ACAD_PLOTSTYLENAME", "Normal") == inDictionary("OTHER", "Normal"));
    EXPECT_FALSE(m_database->getPlotStyleNameDictionaryId().isNull());
}

TEST_F(ObjectText, AnyOtherObjectIsItsClassInAngleBrackets)
{
    m_drawing.namedObjects().dictionary("OTHER").xrecord("DATA").group(1, "text");
    m_database = m_drawing.open();

    EXPECT_EQ(text(inDictionary("OTHER", "DATA")), "<OdDbXrecord>");
    EXPECT_EQ(text(m_database->getNamedObjectsDictionaryId()), "<OdDbDictionary>");
}

TEST(PlotStyleDictionary, IsMadeOnceWhereItIsMissing)
{
    const OdDbDatabasePtr drawing = CKvDrawingBuilder().open();

    const OdDbObjectId made = drawing->getPlotStyleNameDictionaryId();

    EXPECT_FALSE(made.isNull());
    EXPECT_EQ(drawing->getPlotStyleNameDictionaryId(), made);
    EXPECT_TRUE(CKvDrawingBuilder("AC1009").open()->getPlotStyleNameDictionaryId().isNull());
}

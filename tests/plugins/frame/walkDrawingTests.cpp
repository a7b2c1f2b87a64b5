// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "drawingText.h"
#include "walkDrawing.h"

#include "OdRxClass.h"

#include <gtest/gtest.h>

namespace
{

/// Block and type of the entities that may be on layer WALLS.
std::string entitiesMet(const OdDbDatabase &drawing)
{
    std::string text;
    const OdDbObjectId walls = recordId(drawing.getLayerTableId(), "WALLS");
    walkOwnEntitiesNaming(drawing, walls, [&](const OdDbEntityPtr &entity) {
        text += nameOf(entity->ownerId()) + ' ' + entity->isA()->dxfName().toQString().toStdString()
            + (entity->isWriteEnabled() ? "\n" : " read-only\n");
    });
    return text;
}

std::string recordsMet(OdDbObjectId tableId, OdDb::OpenMode mode)
{
    std::string text;
    walkTable(tableId, mode, [&text](const OdDbSymbolTableRecordPtr &record) {
        text += record->getName().toQString().toStdString()
            + (record->isWriteEnabled() ? " writable\n" : "\n");
    });
    return text;
}

} // namespace

TEST(WalkDrawing, ATableIsWalkedInTheOrderOfTheFile)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS");
    builder.layer("ATTIC");
    builder.layer("walls");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(recordsMet(drawing->getLayerTableId(), OdDb::kForRead), "WALLS\nATTIC\nwalls\n");
    EXPECT_EQ(recordsMet(drawing->getLayerTableId(), OdDb::kForWrite),
              "WALLS writable\nATTIC writable\nwalls writable\n");
}

TEST(WalkDrawing, ErasedRecordsAreLeftOut)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS");
    builder.layer("ATTIC");
    const OdDbDatabasePtr drawing = builder.open();

    recordId(drawing->getLayerTableId(), "WALLS").safeOpenObject(OdDb::kForWrite)->erase();

    EXPECT_EQ(recordsMet(drawing->getLayerTableId(), OdDb::kForRead), "ATTIC\n");
}

TEST(WalkDrawing, NoTableHasNoRecords)
{
    EXPECT_EQ(recordsMet(OdDbObjectId(), OdDb::kForRead), "");
}

TEST(WalkDrawing, AnObjectThatIsNoTableIsRefused)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_THROW(recordsMet(recordId(drawing->getLayerTableId(), "WALLS"), OdDb::kForRead),
                 OdError_NotThatKindOfClass);
}

TEST(WalkDrawing, EntitiesOfALayerAreMetForWritingSpaceByBlockAttributesBehindTheirInsertion)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS");
    builder.layer("DOORS");
    builder.block("DOOR").line("WALLS");
    builder.block("WINDOW").line("DOORS");
    builder.modelSpace().line("walls");
    builder.modelSpace().line("DOORS");
    builder.modelSpace().insert("DOOR", "WALLS").attribute("NO", "17").lastChild().layer("WALLS");
    builder.paperSpace().text("Plan", "WALLS");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(entitiesMet(*drawing),
              "*Model_Space LINE\n*Model_Space INSERT\n*Model_Space ATTRIB\n"
              "*Paper_Space TEXT\nDOOR LINE\n");
}

TEST(WalkDrawing, EntitiesOfExternalReferencesAreNotMet)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS");
    builder.externalReference("SITE").line("WALLS");
    builder.block("OVERLAY").blockFlags(8).line("WALLS");
    builder.block("DOOR").line("WALLS");
    builder.modelSpace().insert("SITE", "WALLS");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(entitiesMet(*drawing), "*Model_Space INSERT\nDOOR LINE\n");
}

TEST(WalkDrawing, ErasedEntitiesAreNotMet)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS");
    builder.modelSpace().line("WALLS").handle("AB");
    builder.modelSpace().text("Plan", "WALLS");
    const OdDbDatabasePtr drawing = builder.open();

    drawing->getOdDbObjectId(OdDbHandle(0xAB)).safeOpenObject(OdDb::kForWrite)->erase();

    EXPECT_EQ(entitiesMet(*drawing), "*Model_Space TEXT\n");
}

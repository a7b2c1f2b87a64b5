// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "drawingText.h"
#include "walkDrawing.h"

#include "OdRxClass.h"

#include <gtest/gtest.h>

namespace
{

std::string entitiesMet(const OdDbDatabase &drawing)
{
    std::string text;
    walkOwnEntities(drawing, [&text](const OdDbEntityPtr &entity) {
        text += entity->isA()->dxfName().toQString().toStdString()
            + (entity->isWriteEnabled() ? " " : " read-only ")
            + entity->layer().toQString().toStdString() + '\n';
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

TEST(WalkDrawing, EntitiesOfSpacesAndBlocksAreMetForWritingAttributesBehindTheirInsertion)
{
    CKvDrawingBuilder builder;
    builder.block("DOOR").line("FRAMES");
    builder.modelSpace().line("WALLS");
    builder.modelSpace().insert("DOOR", "DOORS").attribute("NO", "17").lastChild().layer("NUMBERS");
    builder.paperSpace().text("Plan", "TITLES");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(entitiesMet(*drawing),
              "LINE WALLS\nINSERT DOORS\nATTRIB NUMBERS\nTEXT TITLES\nLINE FRAMES\n");
}

TEST(WalkDrawing, EntitiesOfExternalReferencesAreNotMet)
{
    CKvDrawingBuilder builder;
    builder.externalReference("SITE").line("WALLS");
    builder.block("OVERLAY").blockFlags(8).line("WALLS");
    builder.block("DOOR").line("WALLS");
    builder.modelSpace().insert("SITE", "WALLS");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(entitiesMet(*drawing), "INSERT WALLS\nLINE WALLS\n");
}

TEST(WalkDrawing, ErasedEntitiesAreNotMet)
{
    CKvDrawingBuilder builder;
    builder.modelSpace().line("WALLS").handle("AB");
    builder.modelSpace().line("DOORS");
    const OdDbDatabasePtr drawing = builder.open();

    drawing->getOdDbObjectId(OdDbHandle(0xAB)).safeOpenObject(OdDb::kForWrite)->erase();

    EXPECT_EQ(entitiesMet(*drawing), "LINE DOORS\n");
}

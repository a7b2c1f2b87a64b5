// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbEntity.h"
#include "OdDbIdMapping.h"
#include "OdDbLayerTableRecord.h"
#include "OdRxClass.h"
#include "drawingText.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

/// Type and layer of the entities that may name a record, "LINE WALLS", one a line.
std::string entitiesText(const OdDbDatabase &drawing, OdDbObjectId recordId)
{
    std::string text;
    for (const OdDbObjectId id : drawing.entitiesNaming(recordId)) {
        const OdDbEntityPtr entity(id.openObject());
        text += entity->isA()->dxfName().toQString().toStdString() + ' '
            + entity->layer().toQString().toStdString() + '\n';
    }
    return text;
}

OdDbObjectId layerId(const OdDbDatabasePtr &drawing, const char *name)
{
    return recordId(drawing->getLayerTableId(), name);
}

void moveAll(const OdDbDatabasePtr &drawing, const char *from, const char *to)
{
    for (const OdDbObjectId id : drawing->entitiesNaming(layerId(drawing, from))) {
        const OdDbEntityPtr entity(id.openObject(OdDb::kForWrite));
        if (entity->layerId() == layerId(drawing, from)) {
            entity->setLayer(layerId(drawing, to));
        }
    }
}

CKvDrawingBuilder plan()
{
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("WALLS");
    builder.layer("DOORS");
    return builder;
}

} // namespace

TEST(EntitiesNaming, ThoseOfALayerComeBlockByBlockAsTheWalkMeetsThem)
{
    CKvDrawingBuilder builder = plan();
    builder.block("DOOR").line("WALLS");
    builder.modelSpace()
        .insert("DOOR", "WALLS")
        .attribute("NUMBER", "12")
        .lastChild()
        .layer("WALLS");
    builder.modelSpace().line("DOORS");
    builder.modelSpace().polyline("WALLS").vertex(0, 0).vertex(1, 0);
    builder.paperSpace().text("Plan", "WALLS");
    const OdDbDatabasePtr drawing = builder.open();

    std::string walked;
    for (const OdDbObjectId id : drawing->entitiesNaming(layerId(drawing, "WALLS"))) {
        const OdDbEntityPtr entity(id.openObject());
        walked += nameOf(entity->ownerId()) + ' '
            + entity->isA()->dxfName().toQString().toStdString() + " WALLS\n";
    }

    EXPECT_EQ(walked,
              "*Model_Space INSERT WALLS\n*Model_Space ATTRIB WALLS\n"
              "*Model_Space POLYLINE WALLS\n*Paper_Space TEXT WALLS\nDOOR LINE WALLS\n");
}

TEST(EntitiesNaming, ANameIsFoundInEverySpelling)
{
    CKvDrawingBuilder builder = plan();
    builder.modelSpace().line("walls");
    builder.modelSpace().line("\\U+0057ALLS");
    builder.modelSpace().line("WALLS ");
    builder.modelSpace().line("Walls");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(entitiesText(*drawing, layerId(drawing, "WALLS")),
              "LINE walls\nLINE WALLS\nLINE Walls\n");
}

TEST(EntitiesNaming, WhatNamesNothingMeansLayerZeroAndTheStandardStyles)
{
    CKvDrawingBuilder builder = plan();
    builder.modelSpace().entity("LINE").layer("WALLS");
    builder.modelSpace().text("plain", "WALLS");
    builder.modelSpace().text("styled", "DOORS").textStyle("NOTES");
    builder.modelSpace().entity("DIMENSION").layer("WALLS");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(entitiesText(*drawing, recordId(drawing->getTextStyleTableId(), "Standard")),
              "TEXT WALLS\n");
    EXPECT_EQ(entitiesText(*drawing, recordId(drawing->getDimStyleTableId(), "Standard")),
              "DIMENSION WALLS\n");
    EXPECT_EQ(entitiesText(*drawing, recordId(drawing->getLinetypeTableId(), "ByLayer")),
              "LINE WALLS\nTEXT WALLS\nTEXT DOORS\nDIMENSION WALLS\n");
}

TEST(EntitiesNaming, AnEntityWithoutALayerIsOneOfLayerZero)
{
    const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(
        "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n0\nLAYER\n2\n0\n0\nENDTAB\n0\nENDSEC\n"
        "0\nSECTION\n2\nENTITIES\n0\nLINE\n62\n1\n0\nPOINT\n8\nDOTS\n0\nENDSEC\n0\nEOF\n");

    EXPECT_EQ(entitiesText(*drawing, layerId(drawing, "0")), "LINE 0\n");
}

TEST(EntitiesNaming, ATableIsMetForEveryTextStyle)
{
    CKvDrawingBuilder builder = plan();
    builder.textStyle("NOTES");
    builder.textStyle("TITLES");
    builder.modelSpace().entity("ACAD_TABLE").textStyle("NOTES");
    const OdDbDatabasePtr drawing = builder.open();

    for (const char *style : { "NOTES", "TITLES", "Standard" }) {
        EXPECT_EQ(entitiesText(*drawing, recordId(drawing->getTextStyleTableId(), style)),
                  "ACAD_TABLE 0\n")
            << style;
    }
}

TEST(EntitiesNaming, MovedRenamedAndClonedEntitiesAreFoundWhereTheyAreNow)
{
    CKvDrawingBuilder builder = plan();
    builder.modelSpace().line("WALLS");
    builder.modelSpace().text("note", "DOORS");
    CKvDrawingBuilder other;
    other.layer("WALLS");
    other.block("WINDOW").line("WALLS");
    const OdDbDatabasePtr source = other.open();
    const OdDbDatabasePtr drawing = builder.open();

    moveAll(drawing, "WALLS", "DOORS");
    OdDbLayerTableRecordPtr(layerId(drawing, "DOORS").openObject(OdDb::kForWrite))
        ->setName(OdString("OPENINGS"));
    const OdDbIdMappingPtr mapping = OdDbIdMapping::createObject();
    mapping->setDestDb(drawing.get());
    OdDbObjectIdArray blocks;
    blocks.append(recordId(source->getBlockTableId(), "WINDOW"));
    source->wblockCloneObjects(
        blocks, drawing->getBlockTableId(), *mapping, OdDb::kReplaceDuplicates);

    EXPECT_EQ(entitiesText(*drawing, layerId(drawing, "OPENINGS")),
              "LINE OPENINGS\nTEXT OPENINGS\n");
    EXPECT_EQ(entityLayersText(*drawing),
              "*Model_Space LINE OPENINGS\n*Model_Space TEXT OPENINGS\nWINDOW LINE WALLS\n");
    const std::string onWalls = entitiesText(*drawing, layerId(drawing, "WALLS"));
    EXPECT_NE(onWalls.find("LINE WALLS\n"), std::string::npos) << onWalls;
}

TEST(EntitiesNaming, AnErasedEntityIsLeftOutUntilItComesBack)
{
    CKvDrawingBuilder builder = plan();
    builder.modelSpace().line("WALLS").handle("ABC");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbObjectId line = drawing->getOdDbObjectId(OdDbHandle(0xABC));

    line.openObject(OdDb::kForWrite)->erase();

    EXPECT_EQ(entitiesText(*drawing, layerId(drawing, "WALLS")), "");
    line.openObject(OdDb::kForWrite, /*openErased*/ true)->erase(false);
    EXPECT_EQ(entitiesText(*drawing, layerId(drawing, "WALLS")), "LINE WALLS\n");
}

TEST(EntitiesNaming, NoRecordAndWhatIsNoneOfThisDrawingHaveNone)
{
    CKvDrawingBuilder builder = plan();
    builder.modelSpace().line("WALLS");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbDatabasePtr other = builder.open();

    EXPECT_TRUE(drawing->entitiesNaming(OdDbObjectId()).isEmpty());
    EXPECT_TRUE(drawing->entitiesNaming(layerId(other, "WALLS")).isEmpty());
    EXPECT_TRUE(drawing->entitiesNaming(drawing->getLayerTableId()).isEmpty());
    EXPECT_TRUE(
        drawing->entitiesNaming(recordId(drawing->getBlockTableId(), "*Model_Space")).isEmpty());
}

TEST(MovedEntities, OnlyTheLinesOfTheirLayersChangeInTheFile)
{
    CKvDrawingBuilder builder = plan();
    builder.modelSpace().line("WALLS");
    builder.modelSpace().line("DOORS");
    builder.modelSpace().polyline("WALLS").vertex(0, 0).lastChild().layer("WALLS");
    const OdDbDatabasePtr drawing = builder.open();
    QByteArray expected = builder.toBytes();
    const int entities = expected.indexOf("ENTITIES");
    expected =
        expected.left(entities) + expected.mid(entities).replace("  8\nWALLS\n", "  8\nDOORS\n");

    moveAll(drawing, "WALLS", "DOORS");

    EXPECT_TRUE(CKvDrawingFile::isChanged(*drawing));
    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing).toStdString(), expected.toStdString());
}

TEST(MovedEntities, MovedBackTheyAreWhatTheyWere)
{
    CKvDrawingBuilder builder = plan();
    builder.modelSpace().line("WALLS");
    const OdDbDatabasePtr drawing = builder.open();

    // More often than there are numbers for the names that entities were moved to.
    for (int i = 0; i < 35000; ++i) {
        moveAll(drawing, "WALLS", "DOORS");
        moveAll(drawing, "DOORS", "WALLS");
    }

    EXPECT_FALSE(CKvDrawingFile::isChanged(*drawing));
    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing).toStdString(), builder.toBytes().toStdString());
}

TEST(MovedEntities, KeepTheirNewLayerWhenTheyChangeInOtherWays)
{
    CKvDrawingBuilder builder = plan();
    builder.modelSpace().line("WALLS").handle("ABC");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbObjectId line = drawing->getOdDbObjectId(OdDbHandle(0xABC));

    moveAll(drawing, "WALLS", "DOORS");
    line.openObject(OdDb::kForWrite)->createExtensionDictionary();
    const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));

    EXPECT_EQ(entityLayersText(*again), "*Model_Space LINE DOORS\n");
    EXPECT_FALSE(again->getOdDbObjectId(OdDbHandle(0xABC)).openObject()->extensionDictionary()
                 == OdDbObjectId());
    EXPECT_EQ(entitiesText(*drawing, layerId(drawing, "DOORS")), "LINE DOORS\n");
}

TEST(MovedEntities, ABinaryDrawingKeepsItsForm)
{
    const QByteArray mark("AutoCAD Binary DXF\r\n\x1a\0", 22);
    QByteArray bytes = mark;
    const auto text = [&](char code, const char *value) {
        bytes.append(code).append('\0').append(value).append('\0');
    };
    const auto section = [&](const char *name) {
        text(0, "SECTION");
        text(2, name);
    };
    section("TABLES");
    text(0, "TABLE");
    text(2, "LAYER");
    for (const char *name : { "WALLS", "DOORS OF OAK" }) {
        text(0, "LAYER");
        text(2, name);
    }
    text(0, "ENDTAB");
    text(0, "ENDSEC");
    section("ENTITIES");
    text(0, "LINE");
    text(8, "WALLS");
    text(0, "ENDSEC");
    text(0, "EOF");
    const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes);
    QByteArray expected = bytes;
    expected.replace(QByteArray("\x08\0WALLS\0", 8), QByteArray("\x08\0DOORS OF OAK\0", 15));

    moveAll(drawing, "WALLS", "DOORS OF OAK");

    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing).toHex(), expected.toHex());
}

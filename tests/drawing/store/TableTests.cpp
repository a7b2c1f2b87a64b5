// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbEntity.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTable.h"
#include "OdDbLinetypeTableRecord.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace
{

OdDbLayerTablePtr layersOf(const OdDbDatabasePtr &drawing, OdDb::OpenMode mode = OdDb::kForRead)
{
    return OdDbLayerTablePtr(drawing->getLayerTableId().openObject(mode));
}

OdDbLayerTableRecordPtr
layerOf(const OdDbDatabasePtr &drawing, const char *name, OdDb::OpenMode mode = OdDb::kForRead)
{
    return OdDbLayerTableRecordPtr(
        layersOf(drawing)->getAt(OdString(QString::fromUtf8(name))).openObject(mode));
}

QStringList namesOf(const OdDbSymbolTablePtr &table)
{
    QStringList names;
    for (OdDbSymbolTableIteratorPtr walk = table->newIterator(); !walk->done(); walk->step()) {
        names.append(walk->getRecord()->getName().toQString());
    }
    return names;
}

/// What saving changes, as lines "-old" and "+new" in the order of the file.
QStringList changedLines(const QByteArray &before, const QByteArray &after)
{
    QStringList changes;
    const QList<QByteArray> oldLines = before.split('\n');
    const QList<QByteArray> newLines = after.split('\n');
    int first = 0;
    while (first < oldLines.size() && first < newLines.size()
           && oldLines[first] == newLines[first]) {
        ++first;
    }
    int behind = 0;
    while (behind < oldLines.size() - first && behind < newLines.size() - first
           && oldLines[oldLines.size() - 1 - behind] == newLines[newLines.size() - 1 - behind]) {
        ++behind;
    }
    for (int i = first; i < oldLines.size() - behind; ++i) {
        changes.append(QLatin1Char('-') + QString::fromUtf8(oldLines[i].trimmed()));
    }
    for (int i = first; i < newLines.size() - behind; ++i) {
        changes.append(QLatin1Char('+') + QString::fromUtf8(newLines[i].trimmed()));
    }
    return changes;
}

} // namespace

TEST(SymbolTable, RecordsAreWalkedInTheOrderOfTheFileAndFoundWithoutRegardToCase)
{
    CKvDrawingBuilder builder("AC1032");
    builder.layer("Wände");
    builder.layer("доРОГИ");
    builder.layer("STRASSE");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(namesOf(layersOf(drawing)),
              (QStringList { QString::fromUtf8("Wände"),
                             QString::fromUtf8("доРОГИ"),
                             QStringLiteral("STRASSE") }));
    EXPECT_TRUE(layersOf(drawing)->has(OdString(QString::fromUtf8("WÄNDE"))));
    EXPECT_TRUE(layersOf(drawing)->has(OdString(QString::fromUtf8("Дороги"))));
    EXPECT_FALSE(layersOf(drawing)->has(OdString(QString::fromUtf8("Straße"))));
}

TEST(SymbolTable, OfTwoRecordsOfOneNameBothAreWalkedAndTheFirstIsFound)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS").color(1);
    builder.layer("walls").color(2);
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(namesOf(layersOf(drawing)).size(), 2);
    EXPECT_EQ(layerOf(drawing, "WALLS")->color().colorIndex(), 1);
    layerOf(drawing, "WALLS", OdDb::kForWrite)->erase();
    EXPECT_EQ(layerOf(drawing, "WALLS")->color().colorIndex(), 2);
}

TEST(SymbolTable, BlanksAtTheEndsOfANameBelongToIt)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS ");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_FALSE(layersOf(drawing)->has(OdString("WALLS")));
    EXPECT_TRUE(layersOf(drawing)->has(OdString("walls ")));
}

TEST(SymbolTable, NoRecordIsMadeUpForAWalk)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS").lineStyle("MISSING");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbLinetypeTablePtr lineStyles(drawing->getLinetypeTableId().openObject());

    const OdDbLinetypeTableRecordPtr standIn(
        layerOf(drawing, "WALLS")->linetypeObjectId().openObject());

    EXPECT_EQ(standIn->getName().toQString(), QStringLiteral("MISSING"));
    EXPECT_EQ(standIn->numDashes(), 0);
    EXPECT_TRUE(namesOf(lineStyles).isEmpty());
    EXPECT_FALSE(lineStyles->has(OdString("MISSING")));
    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing), builder.toBytes());
}

TEST(LayerRecord, ValuesThatTheFileLeavesOutHaveTheirDefaults)
{
    CKvDrawingBuilder builder;
    builder.withReservedLineStyles().layer("BARE").without(62).without(6);
    const OdDbDatabasePtr drawing = builder.open();

    const OdDbLayerTableRecordPtr layer = layerOf(drawing, "BARE");

    EXPECT_EQ(layer->color(), OdCmColor::byIndex(7));
    EXPECT_EQ(layer->lineWeight(), OdDb::kLineWeightByDefault);
    EXPECT_EQ(
        OdDbLinetypeTableRecordPtr(layer->linetypeObjectId().openObject())->getName().toQString(),
        QStringLiteral("Continuous"));
}

TEST(LayerRecord, OfAGroupThatOccursTwiceTheLastOneCountsAndIsTheOneThatChanges)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS").color(1).group(62, 4);
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(layerOf(drawing, "WALLS")->color().colorIndex(), 4);
    layerOf(drawing, "WALLS", OdDb::kForWrite)->setColor(OdCmColor::byIndex(5));

    EXPECT_EQ(changedLines(builder.toBytes(), CKvDrawingFile::toBytes(*drawing)),
              (QStringList { QStringLiteral("-4"), QStringLiteral("+5") }));
}

TEST(LayerRecord, ALayerThatIsOffStaysOffWhenItsColourIsSet)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS").color(-1);
    const OdDbDatabasePtr drawing = builder.open();

    layerOf(drawing, "WALLS", OdDb::kForWrite)->setColor(OdCmColor::byIndex(5));

    EXPECT_EQ(layerOf(drawing, "WALLS")->color().colorIndex(), 5);
    EXPECT_EQ(changedLines(builder.toBytes(), CKvDrawingFile::toBytes(*drawing)),
              (QStringList { QStringLiteral("--1"), QStringLiteral("+-5") }));
}

TEST(LayerRecord, ATrueColourKeepsItsIndexAndIsNotWrittenWhereTheVersionHasNoPlaceForIt)
{
    for (const char *version : { "AC1015", "AC1018" }) {
        CKvDrawingBuilder builder(version);
        builder.layer("WALLS").color(1);
        const OdDbDatabasePtr drawing = builder.open();

        layerOf(drawing, "WALLS", OdDb::kForWrite)->setColor(OdCmColor::byColor(10, 20, 30, 250));

        const bool isKept = qstrcmp(version, "AC1018") == 0;
        EXPECT_EQ(layerOf(drawing, "WALLS")->color(),
                  isKept ? OdCmColor::byColor(10, 20, 30, 250) : OdCmColor::byIndex(250))
            << version;
    }
}

TEST(LayerRecord, SettingTheValuesThatAreThereLeavesTheBytesAsTheyAre)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("WALLS").color(3).lineWeight(25).lineStyle("CONTINUOUS");
    const OdDbDatabasePtr drawing = builder.open();
    {
        const OdDbLayerTableRecordPtr layer = layerOf(drawing, "WALLS", OdDb::kForWrite);

        layer->setColor(layer->color());
        layer->setLineWeight(layer->lineWeight());
        layer->setLinetypeObjectId(layer->linetypeObjectId());
    }

    EXPECT_FALSE(CKvDrawingFile::isChanged(*drawing));
    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing), builder.toBytes());
}

TEST(RecordName, ARenameRewritesTheNameWhereverTheDrawingUsesIt)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().currentLayer("Walls");
    builder.layer("WALLS");
    builder.modelSpace().line("walls");
    builder.modelSpace().polyline("WALLS").vertex(0, 0).lastChild().layer("WALLS");
    builder.block("DOOR").layer("WALLS").line("WALLS").extendedData(
        "APP", { { 1003, "WALLS" }, { 1000, "WALLS" } });
    builder.namedObjects().object("LAYER_FILTER", "FILTER").group(8, "WALLS");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbObjectId id = layersOf(drawing)->getAt(OdString("WALLS"));

    layerOf(drawing, "WALLS", OdDb::kForWrite)->setName(OdString("A-WALL"));

    const QByteArray text = CKvDrawingFile::toBytes(*drawing);
    EXPECT_EQ(layersOf(drawing)->getAt(OdString("a-wall")), id);
    EXPECT_FALSE(layersOf(drawing)->has(OdString("WALLS")));
    EXPECT_EQ(drawing->getCLAYER(), id);
    // What is left is the text of the extended data, which names no layer.
    EXPECT_EQ(text.toLower().count("\nwalls\n"), 1);
}

TEST(RecordName, NamesThatNoLayerMayBearAreRefusedAndNothingChanges)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("WALLS");
    builder.layer("DOORS");
    builder.layer("OLD*NAME");
    const OdDbDatabasePtr drawing = builder.open();

    for (const char *name : { "", "A/B", "A*", "A|B", "A`B", "doors" }) {
        EXPECT_THROW(layerOf(drawing, "WALLS", OdDb::kForWrite)->setName(OdString(name)), OdError)
            << name;
    }
    EXPECT_THROW(layerOf(drawing, "0", OdDb::kForWrite)->setName(OdString("ZERO")), OdError);
    EXPECT_NO_THROW(layerOf(drawing, "OLD*NAME", OdDb::kForWrite)->setName(OdString("OLD*NAME")));
    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing), builder.toBytes());
}

TEST(RecordName, ARecordOfAnExternalReferenceIsToldByItsFlagOrItsBar)
{
    CKvDrawingBuilder builder;
    builder.layer("HOUSE|WALLS");
    builder.layer("BOUND").flags(16);
    builder.layer("PLAIN").flags(4);
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_TRUE(layerOf(drawing, "HOUSE|WALLS")->isDependent());
    EXPECT_TRUE(layerOf(drawing, "BOUND")->isDependent());
    EXPECT_FALSE(layerOf(drawing, "PLAIN")->isDependent());
}

TEST(BlockWalk, AttributesStandBehindTheirInsertionAndPartsOfAPolylineAreNotMet)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    builder.modelSpace().polyline().vertex(0, 0).vertex(1, 1);
    builder.modelSpace().insert("DOOR").attribute("NR", "7");
    builder.modelSpace().line();
    builder.block("DOOR").line();
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbBlockTablePtr blocks(drawing->getBlockTableId().openObject());
    const OdDbBlockTableRecordPtr space(blocks->getAt(OdString("*Model_Space")).openObject());

    QStringList types;
    for (OdDbObjectIteratorPtr walk = space->newIterator(); !walk->done(); walk->step()) {
        types.append(walk->entity()->isA()->dxfName().toQString());
    }

    EXPECT_EQ(types.join(QLatin1Char(' ')), QStringLiteral("POLYLINE INSERT ATTRIB LINE"));
}

TEST(EntityLayer, PartsGoAlongWhereTheyHadTheSameLayer)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("OLD");
    builder.layer("NEW");
    builder.layer("OTHER");
    CKvEntityBuilder &line = builder.modelSpace().polyline("OLD").vertex(0, 0);
    line.lastChild().layer("OLD");
    line.vertex(1, 1).lastChild().layer("OTHER");
    line.endMark().layer("OLD");
    builder.modelSpace().line("OLD");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbBlockTablePtr blocks(drawing->getBlockTableId().openObject());
    const OdDbBlockTableRecordPtr space(blocks->getAt(OdString("*Model_Space")).openObject());

    space->newIterator()
        ->entity(OdDb::kForWrite)
        ->setLayer(layersOf(drawing)->getAt(OdString("NEW")));

    const QByteArray text = CKvDrawingFile::toBytes(*drawing);
    EXPECT_EQ(text.count("\n  8\nNEW\n"), 3);
    EXPECT_EQ(text.count("\n  8\nOTHER\n"), 1);
    EXPECT_EQ(text.count("\n  8\nOLD\n"), 1);
}

TEST(EntityLayer, AnEntityWithoutLayerIsOnLayerZero)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().modelSpace().line("GHOST");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbBlockTablePtr blocks(drawing->getBlockTableId().openObject());
    const OdDbBlockTableRecordPtr space(blocks->getAt(OdString("*Model_Space")).openObject());

    const OdDbSymbolTableRecordPtr layer(space->newIterator()->entity()->layerId().openObject());

    EXPECT_EQ(layer->getName().toQString(), QStringLiteral("GHOST"));
    EXPECT_FALSE(layersOf(drawing)->has(OdString("GHOST")));
}

TEST(EntityLayer, AnAttributeLeavesTheEndMarkOfItsInsertionAlone)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("OLD");
    builder.layer("NEW");
    builder.block("DOOR").line();
    CKvEntityBuilder &door = builder.modelSpace().insert("DOOR").attribute("NR", "7");
    door.lastChild().layer("OLD");
    door.endMark().layer("OLD");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbBlockTablePtr blocks(drawing->getBlockTableId().openObject());
    const OdDbBlockTableRecordPtr space(blocks->getAt(OdString("*Model_Space")).openObject());
    const OdDbObjectIteratorPtr walk = space->newIterator();
    walk->step();

    walk->entity(OdDb::kForWrite)->setLayer(layersOf(drawing)->getAt(OdString("NEW")));

    const QByteArray text = CKvDrawingFile::toBytes(*drawing);
    EXPECT_EQ(text.count("\n  8\nNEW\n"), 1);
    EXPECT_EQ(text.count("\n  8\nOLD\n"), 1);
}

TEST(RecordName, ASecondRecordOfANameIsRenamedWithoutTheUsersOfTheFirst)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("A").handle("AA1");
    builder.layer("A").handle("AA2");
    builder.modelSpace().line("A");
    const OdDbDatabasePtr drawing = builder.open();

    OdDbLayerTableRecordPtr(drawing->getOdDbObjectId(OdDbHandle(0xAA2)).openObject(OdDb::kForWrite))
        ->setName(OdString("Z"));

    EXPECT_EQ(changedLines(builder.toBytes(), CKvDrawingFile::toBytes(*drawing)),
              (QStringList { QStringLiteral("-A"), QStringLiteral("+Z") }));
}

TEST(Erasing, PointersToAnErasedRecordAreWrittenAsZeroAndSoftOnesStay)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("GONE").handle("AA1");
    builder.namedObjects().object("IDBUFFER", "HARD").handleOf(340, "LAYER", "GONE");
    builder.namedObjects().object("IDBUFFER", "SOFT").handleOf(331, "LAYER", "GONE");
    builder.layer("TELLS").extendedData("APP", { { 1005, "AA1" } });
    const OdDbDatabasePtr drawing = builder.open();

    drawing->getOdDbObjectId(OdDbHandle(0xAA1)).openObject(OdDb::kForWrite)->erase();

    const QByteArray text = CKvDrawingFile::toBytes(*drawing);
    EXPECT_TRUE(text.contains("\n340\n0\n"));
    EXPECT_TRUE(text.contains("\n331\nAA1\n"));
    EXPECT_TRUE(text.contains("\n1005\n0\n"));
}

TEST(Erasing, ANewRecordThatIsErasedAgainLeavesThePointersThatTheFileHas)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    builder.layer("TELLS").handle("AA1").extendedData("APP", { { 1005, "AA2" } });
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
    layer->setName(OdString("NEW"));
    layersOf(drawing, OdDb::kForWrite)->add(layer);
    ASSERT_EQ(layer->getDbHandle(), OdDbHandle(0xAA2));

    layer->erase();

    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing), builder.toBytes());
}

TEST(LayerRecord, OfTwoTrueColoursNoneIsLeftWhenAnIndexIsSet)
{
    CKvDrawingBuilder builder("AC1032");
    builder.layer("WALLS").color(1).group(420, 255).group(420, 65280);
    const OdDbDatabasePtr drawing = builder.open();

    layerOf(drawing, "WALLS", OdDb::kForWrite)->setColor(OdCmColor::byIndex(5));

    EXPECT_EQ(layerOf(drawing, "WALLS")->color(), OdCmColor::byIndex(5));
}

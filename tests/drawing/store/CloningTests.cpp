// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbDictionary.h"
#include "OdDbIdMapping.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTable.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbTextStyleTable.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

OdDbSymbolTablePtr tableOf(OdDbObjectId id, OdDb::OpenMode mode = OdDb::kForRead)
{
    return OdDbSymbolTablePtr(id.openObject(mode));
}

OdDbLinetypeTableRecordPtr lineStyleOf(const OdDbDatabasePtr &drawing, const char *name)
{
    return OdDbLinetypeTableRecordPtr(
        tableOf(drawing->getLinetypeTableId())->getAt(OdString(name)).openObject(OdDb::kForWrite));
}

OdDbIdMappingPtr clone(const OdDbDatabasePtr &source,
                       OdDbObjectId id,
                       const OdDbDatabasePtr &destination,
                       OdDbObjectId owner)
{
    OdDbIdMappingPtr mapping = OdDbIdMapping::createObject();
    mapping->setDestDb(destination.get());
    OdDbObjectIdArray ids;
    ids.append(id);
    source->wblockCloneObjects(ids, owner, *mapping, OdDb::kReplaceDuplicates);
    return mapping;
}

OdDbDatabasePtr reopened(const OdDbDatabasePtr &drawing)
{
    return CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing),
                                     QStringLiteral("again.dxf"));
}

} // namespace

TEST(Cloning, AComplexLineStyleBringsTheTextStyleThatTheDrawingLacks)
{
    CKvDrawingBuilder standards;
    standards.textStyle("GAS TEXT").font("simplex");
    standards.lineStyle("GAS")
        .dashes({ 0.5, -0.2 })
        .group(74, 2)
        .handleOf(340, "STYLE", "GAS TEXT");
    CKvDrawingBuilder builder("AC1032");
    builder.withDefaults();
    const OdDbDatabasePtr source = standards.open();
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbObjectId gas = tableOf(source->getLinetypeTableId())->getAt(OdString("gas"));

    const OdDbIdMappingPtr mapping = clone(source, gas, drawing, drawing->getLinetypeTableId());

    OdDbObjectId copy;
    ASSERT_TRUE(mapping->compute(gas, copy));
    EXPECT_EQ(copy, tableOf(drawing->getLinetypeTableId())->getAt(OdString("GAS")));
    EXPECT_EQ(lineStyleOf(drawing, "GAS")->numDashes(), 2);
    const OdDbObjectId style = tableOf(drawing->getTextStyleTableId())->getAt(OdString("GAS TEXT"));
    ASSERT_FALSE(style.isNull());
    const QByteArray text = CKvDrawingFile::toBytes(*drawing);
    EXPECT_TRUE(text.contains("340\n" + style.handle().ascii().toQString().toLatin1() + "\n"));
    EXPECT_TRUE(tableOf(reopened(drawing)->getLinetypeTableId())->has(OdString("GAS")));
}

TEST(Cloning, ALayerBringsItsLineStyleAndLeavesItsExtensionDictionaryBehind)
{
    CKvDrawingBuilder standards("AC1032");
    standards.lineStyle("STRICHE").dashes({ 1, -1 });
    standards.layer("WÄNDE").lineStyle("STRICHE").color(3).stamped(1, "anna");
    CKvDrawingBuilder builder;
    builder.withDefaults();
    const OdDbDatabasePtr source = standards.open();
    const OdDbDatabasePtr drawing = builder.open();
    const OdString name(QString::fromUtf8("Wände"));

    clone(source,
          tableOf(source->getLayerTableId())->getAt(name),
          drawing,
          drawing->getLayerTableId());

    const OdDbDatabasePtr again = reopened(drawing);
    const OdDbLayerTableRecordPtr layer(
        tableOf(again->getLayerTableId())->getAt(name).openObject());
    ASSERT_FALSE(layer.isNull());
    EXPECT_EQ(layer->color().colorIndex(), 3);
    EXPECT_TRUE(layer->extensionDictionary().isNull());
    EXPECT_TRUE(tableOf(again->getLinetypeTableId())->has(OdString("STRICHE")));
}

TEST(Cloning, ARecordOfANameThatIsTakenIsReplacedAndKeepsIdAndHandle)
{
    CKvDrawingBuilder standards;
    standards.lineStyle("DASHED").dashes({ 1, -1, 0, -1 });
    CKvDrawingBuilder builder;
    builder.lineStyle("dashed").dashes({ 2, -2 });
    const OdDbDatabasePtr source = standards.open();
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbObjectId old = tableOf(drawing->getLinetypeTableId())->getAt(OdString("dashed"));

    clone(source,
          tableOf(source->getLinetypeTableId())->getAt(OdString("DASHED")),
          drawing,
          drawing->getLinetypeTableId());

    EXPECT_EQ(tableOf(drawing->getLinetypeTableId())->getAt(OdString("DASHED")), old);
    EXPECT_EQ(lineStyleOf(drawing, "DASHED")->getName().toQString(), QStringLiteral("DASHED"));
    EXPECT_EQ(lineStyleOf(drawing, "DASHED")->numDashes(), 4);
    const OdDbDatabasePtr again = reopened(drawing);
    EXPECT_EQ(tableOf(again->getLinetypeTableId())->getAt(OdString("DASHED")).handle(),
              old.handle());
}

TEST(Cloning, ABlockComesWithItsContentsAndWhatTheyName)
{
    CKvDrawingBuilder standards;
    standards.withDefaults().layer("ARROWS");
    standards.block("TICK").line("ARROWS");
    standards.block("BIG").insert("TICK", "ARROWS");
    CKvDrawingBuilder builder;
    builder.withDefaults().block("DOOR").line();
    const OdDbDatabasePtr source = standards.open();
    const OdDbDatabasePtr drawing = builder.open();

    clone(source,
          tableOf(source->getBlockTableId())->getAt(OdString("BIG")),
          drawing,
          drawing->getBlockTableId());

    const OdDbDatabasePtr again = reopened(drawing);
    const OdDbSymbolTablePtr blocks = tableOf(again->getBlockTableId());
    EXPECT_TRUE(tableOf(again->getLayerTableId())->has(OdString("ARROWS")));
    for (const char *name : { "BIG", "TICK", "DOOR" }) {
        const OdDbBlockTableRecordPtr block(blocks->getAt(OdString(name)).openObject());
        ASSERT_FALSE(block.isNull()) << name;
        EXPECT_FALSE(block->newIterator()->done()) << name;
    }
}

TEST(Cloning, AnAnonymousBlockComesUnderANewNameAndPartsStayWithTheirPolyline)
{
    CKvDrawingBuilder standards;
    standards.withDefaults().layer("ARROWS");
    standards.block("*U1").polyline("ARROWS").vertex(0, 0).lastChild().layer("ARROWS");
    standards.block("BIG").insert("*U1");
    CKvDrawingBuilder builder;
    builder.withDefaults().block("*U1").line();
    const OdDbDatabasePtr source = standards.open();
    const OdDbDatabasePtr drawing = builder.open();

    clone(source,
          tableOf(source->getBlockTableId())->getAt(OdString("BIG")),
          drawing,
          drawing->getBlockTableId());
    const OdDbBlockTableRecordPtr block(
        tableOf(drawing->getBlockTableId())->getAt(OdString("*U2")).openObject());
    ASSERT_FALSE(block.isNull());
    block->newIterator()
        ->entity(OdDb::kForWrite)
        ->setLayer(tableOf(drawing->getLayerTableId())->getAt(OdString("0")));

    const QByteArray text = CKvDrawingFile::toBytes(*reopened(drawing));
    EXPECT_EQ(text.count("  2\n*U2\n"), 3);
    EXPECT_EQ(text.count("  8\nARROWS\n"), 0);
    EXPECT_TRUE(CKvDrawingFile::warnings(*reopened(drawing)).isEmpty());
}

TEST(HandingOver, TheNewObjectTakesIdHandleStampAndExtendedDataOfTheOldOne)
{
    CKvDrawingBuilder standards;
    standards.lineStyle("Dashed")
        .dashes({ 1, -1, 0, -1 })
        .extendedData("STANDARD", { { 1000, "theirs" } });
    CKvDrawingBuilder builder;
    builder.lineStyle("DASHED")
        .dashes({ 2, -2 })
        .extendedData("APP", { { 1000, "ours" } })
        .stamped(1, "anna");
    const OdDbDatabasePtr source = standards.open();
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbObjectId id = tableOf(drawing->getLinetypeTableId())->getAt(OdString("DASHED"));
    const OdDbObjectPtr old = id.openObject(OdDb::kForWrite);
    const OdDbObjectId dictionary = old->extensionDictionary();
    const OdDbObjectPtr copy(lineStyleOf(source, "DASHED")->clone());

    old->handOverTo(copy, /*keepExtendedData*/ true, /*keepExtensionDictionary*/ true);

    EXPECT_EQ(copy->objectId(), id);
    EXPECT_TRUE(old->objectId().isNull());
    EXPECT_EQ(copy->extensionDictionary(), dictionary);
    EXPECT_EQ(lineStyleOf(drawing, "DASHED")->numDashes(), 4);
    EXPECT_TRUE(CKvDrawingFile::toBytes(*drawing).contains("\nours\n"));
    EXPECT_FALSE(CKvDrawingFile::toBytes(*drawing).contains("\ntheirs\n"));
    EXPECT_EQ(CKvDrawingFile::toBytes(*source), standards.toBytes());
}

TEST(Cloning, ExtendedDataComesAlongAndItsApplicationIsEnteredOnce)
{
    CKvDrawingBuilder standards;
    standards.layer("WALLS").extendedData("OFFICE", { { 1000, "theirs" } });
    standards.layer("DOORS").extendedData("OFFICE", { { 1000, "theirs" } });
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("DOORS").extendedData("APP", { { 1000, "ours" } });
    const OdDbDatabasePtr source = standards.open();
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbSymbolTablePtr layers = tableOf(source->getLayerTableId());

    clone(source, layers->getAt(OdString("WALLS")), drawing, drawing->getLayerTableId());
    clone(source, layers->getAt(OdString("DOORS")), drawing, drawing->getLayerTableId());

    const QByteArray text = CKvDrawingFile::toBytes(*drawing);
    EXPECT_EQ(text.count("AcDbRegAppTableRecord\n  2\nOFFICE\n"), 1);
    EXPECT_EQ(text.count("\ntheirs\n"), 2);
    EXPECT_EQ(text.count("\nours\n"), 0);
    EXPECT_TRUE(CKvDrawingFile::warnings(*reopened(drawing)).isEmpty());
}

TEST(AddingAnObject, ARecordOfAnotherDrawingMovesOverAndIsErasedThere)
{
    CKvDrawingBuilder standards;
    standards.lineStyle("DASHED").dashes({ 1, -1 });
    CKvDrawingBuilder builder;
    builder.withDefaults();
    const OdDbDatabasePtr source = standards.open();
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbLinetypeTableRecordPtr record = lineStyleOf(source, "DASHED");

    drawing->addOdDbObject(record, drawing->getLinetypeTableId());
    tableOf(drawing->getLinetypeTableId(), OdDb::kForWrite)->add(record);

    EXPECT_EQ(record->database(), drawing.get());
    EXPECT_TRUE(tableOf(drawing->getLinetypeTableId())->has(OdString("DASHED")));
    EXPECT_FALSE(tableOf(source->getLinetypeTableId())->has(OdString("DASHED")));
    EXPECT_EQ(lineStyleOf(reopened(drawing), "DASHED")->patternLength(), 2.0);
}

TEST(Purging, WhatIsReferredToFromOutsideTheArrayStaysWithWhatItUses)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    for (const char *name : { "FREE", "FREE2", "USED" }) {
        builder.lineStyle(name).dashes({ 1, -1 });
        builder.layer(name).lineStyle(name);
    }
    builder.modelSpace().line("USED");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbSymbolTablePtr layers = tableOf(drawing->getLayerTableId());
    const OdDbSymbolTablePtr lineStyles = tableOf(drawing->getLinetypeTableId());
    OdDbObjectIdArray ids;
    ids.append(OdDbObjectId());
    ids.append(layers->getAt(OdString("0")));
    ids.append(lineStyles->getAt(OdString("Continuous")));
    ids.append(layers->getAt(OdString("FREE")));
    ids.append(lineStyles->getAt(OdString("FREE")));
    ids.append(lineStyles->getAt(OdString("FREE2")));
    ids.append(layers->getAt(OdString("USED")));
    ids.append(lineStyles->getAt(OdString("USED")));
    OdDbObjectIdArray expected;
    expected.append(layers->getAt(OdString("FREE")));
    expected.append(lineStyles->getAt(OdString("FREE")));

    drawing->purgeIds(ids);

    EXPECT_TRUE(ids == expected);
}

TEST(Purging, TheCurrentLayerABlockEdgeAndAHardPointerKeepALayerASoftPointerAndExtendedDataDoNot)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().currentLayer("CURRENT");
    for (const char *name : { "CURRENT", "EDGE", "HARD", "SOFT", "NAMED" }) {
        builder.layer(name);
    }
    builder.block("DOOR").layer("EDGE").line().extendedData("APP", { { 1003, "NAMED" } });
    builder.namedObjects().object("IDBUFFER", "HARD").handleOf(340, "LAYER", "HARD");
    builder.namedObjects().object("IDBUFFER", "SOFT").handleOf(330, "LAYER", "SOFT");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbSymbolTablePtr layers = tableOf(drawing->getLayerTableId());
    OdDbObjectIdArray ids;
    for (const char *name : { "CURRENT", "EDGE", "HARD", "SOFT", "NAMED" }) {
        ids.append(layers->getAt(OdString(name)));
    }

    drawing->purgeIds(ids);

    QStringList left;
    for (const OdDbObjectId id : ids) {
        left.append(OdDbSymbolTableRecordPtr(id.openObject())->getName().toQString());
    }
    EXPECT_EQ(left.join(QLatin1Char(' ')), QStringLiteral("SOFT NAMED"));
}

TEST(LoadingALineStyle, TheStyleComesAsTheFileSpellsItAndAnUnknownOneIsCode156)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("own.lin"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(";; ours\n*Dashed,__ __ __\nA,12.7,-6.35\n");
    file.close();
    CKvDrawingBuilder builder;
    builder.withDefaults();
    const OdDbDatabasePtr drawing = builder.open();

    drawing->loadLineTypeFile(OdString("DASHED"), OdString(path));

    EXPECT_EQ(lineStyleOf(drawing, "dashed")->getName().toQString(), QStringLiteral("Dashed"));
    EXPECT_TRUE(CKvDrawingFile::toBytes(*drawing).contains(" 40\n19.05\n"));
    const auto codeOf = [&](const char *name, const QString &from) {
        try {
            drawing->loadLineTypeFile(OdString(name), OdString(from));
        } catch (const OdError &error) {
            return error.code();
        }
        return 0;
    };
    EXPECT_EQ(codeOf("HIDDEN", path), 156);
    EXPECT_EQ(codeOf("DASHED", folder.filePath(QStringLiteral("none.lin"))), 156);
    EXPECT_NE(codeOf("DASHED", path), 156);
    EXPECT_NE(codeOf("DASHED", path), 0);
    EXPECT_EQ(lineStyleOf(reopened(drawing), "DASHED")->numDashes(), 2);
}

TEST(Cloning, ADrawingWithoutASectionOfBlocksGetsOneForTheBlocksThatComeAlong)
{
    for (const char *version : { "AC1009", "AC1015" }) {
        SCOPED_TRACE(version);
        CKvDrawingBuilder standards(version);
        standards.block("TICK").line();
        CKvDrawingBuilder builder(version);
        builder.layer("0");
        QByteArray bytes = builder.toBytes();
        const int section = bytes.indexOf("  0\nSECTION\n  2\nBLOCKS\n");
        const int end = bytes.indexOf("ENDSEC\n", section) + 7;
        bytes.remove(section, end - section);
        const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes);
        const OdDbDatabasePtr source = standards.open();

        clone(source,
              tableOf(source->getBlockTableId())->getAt(OdString("TICK")),
              drawing,
              drawing->getBlockTableId());

        const OdDbDatabasePtr again = reopened(drawing);
        const OdDbBlockTableRecordPtr block(
            tableOf(again->getBlockTableId())->getAt(OdString("TICK")).openObject());
        ASSERT_FALSE(block.isNull());
        EXPECT_EQ(block->newIterator()->entity()->isA()->dxfName(), OdString("LINE"));
        EXPECT_EQ(CKvDrawingFile::warnings(*again), QStringList());
    }
}

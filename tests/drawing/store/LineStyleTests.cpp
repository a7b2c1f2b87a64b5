// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbEntity.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbObjectIterator.h"
#include "drawingText.h"

#include <gtest/gtest.h>

namespace
{

OdDbLinetypeTableRecordPtr lineStyleOf(const OdDbDatabasePtr &drawing, const char *name)
{
    return OdDbLinetypeTableRecordPtr(recordId(drawing->getLinetypeTableId(), name).openObject());
}

/// The entities of model space, open for writing.
std::vector<OdDbEntityPtr> entitiesOf(const OdDbDatabasePtr &drawing)
{
    const OdDbBlockTableRecordPtr space(
        recordId(drawing->getBlockTableId(), "*Model_Space").openObject());
    std::vector<OdDbEntityPtr> entities;
    for (OdDbObjectIteratorPtr walk = space->newIterator(); !walk->done(); walk->step()) {
        entities.push_back(walk->entity(OdDb::kForWrite));
    }
    return entities;
}

} // namespace

TEST(LineStyles, TheElementsOfAComplexOneAreToldOneByOne)
{
    CKvDrawingBuilder builder;
    builder.textStyle("NOTES");
    builder.textStyle("").flags(1).font("ltypeshp.shx").handle("ABC");
    builder.lineStyle("GAS")
        .dashes({})
        .group(49, 0.5)
        .group(74, 0)
        .group(49, -0.2)
        .group(74, 2)
        .group(75, 0)
        .handleOf(340, "STYLE", "NOTES")
        .group(9, "GÄS")
        .group(49, 0.0)
        .group(74, 4)
        .group(75, 130)
        .group(340, "ABC")
        .group(49, -0.25)
        .group(74, 4)
        .group(75, 0)
        .group(340, "0");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbLinetypeTableRecordPtr gas = lineStyleOf(drawing, "GAS");

    EXPECT_EQ(gas->dashLengthAt(0), 0.5);
    EXPECT_TRUE(gas->shapeStyleAt(0).isNull());
    EXPECT_EQ(gas->textAt(0), OdString());
    EXPECT_EQ(gas->dashLengthAt(1), -0.2);
    EXPECT_EQ(nameOf(gas->shapeStyleAt(1)), "NOTES");
    EXPECT_EQ(gas->textAt(1), OdString(QString::fromUtf8("GÄS")));
    EXPECT_EQ(gas->shapeNumberAt(1), 0);
    EXPECT_EQ(gas->dashLengthAt(2), 0);
    EXPECT_EQ(gas->shapeNumberAt(2), 130);
    EXPECT_EQ(gas->textAt(2), OdString());
    EXPECT_EQ(gas->shapeStyleAt(2).handle().ascii(), OdString("ABC"));
    EXPECT_TRUE(gas->shapeStyleAt(3).isNull());
}

TEST(LineStyles, AnElementThatThereIsNotIsRefused)
{
    CKvDrawingBuilder builder;
    builder.lineStyle("DASHED").dashes({ 1, -1 });
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbLinetypeTableRecordPtr dashed = lineStyleOf(drawing, "DASHED");

    EXPECT_THROW(dashed->dashLengthAt(-1), OdError_InvalidIndex);
    EXPECT_THROW(dashed->dashLengthAt(2), OdError_InvalidIndex);
    EXPECT_THROW(dashed->textAt(2), OdError_InvalidIndex);
}

TEST(LineStyles, TheReservedOnesAreKnownByTheirNames)
{
    CKvDrawingBuilder builder;
    builder.lineStyle("BYLAYER");
    builder.lineStyle("byblock");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbObjectId table = drawing->getLinetypeTableId();

    EXPECT_EQ(drawing->getLinetypeByLayerId(), recordId(table, "ByLayer"));
    EXPECT_EQ(drawing->getLinetypeByBlockId(), recordId(table, "ByBlock"));
    // The file has none; no record has the id of what stands in for it.
    EXPECT_EQ(nameOf(drawing->getLinetypeContinuousId()), "Continuous");
    EXPECT_TRUE(recordId(table, "Continuous").isNull());
}

TEST(LineStyles, TheCurrentOneIsReadAndWrittenInTheHeader)
{
    CKvDrawingBuilder builder;
    builder.withReservedLineStyles().lineStyle("DASHED");
    builder.currentLineStyle("dashed");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(nameOf(drawing->getCELTYPE()), "DASHED");
    drawing->setCELTYPE(recordId(drawing->getLinetypeTableId(), "Continuous"));

    const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));
    EXPECT_EQ(nameOf(again->getCELTYPE()), "Continuous");
}

TEST(LineStyles, WithoutAHeaderVariableByLayerIsCurrentAndAnotherOneIsAdded)
{
    CKvDrawingBuilder builder;
    builder.withReservedLineStyles().lineStyle("DASHED");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(nameOf(drawing->getCELTYPE()), "ByLayer");
    drawing->setCELTYPE(recordId(drawing->getLinetypeTableId(), "DASHED"));

    EXPECT_TRUE(CKvDrawingFile::toBytes(*drawing).contains("  9\n$CELTYPE\n  6\nDASHED\n"));
}

TEST(LineStyles, OneOfAnotherDrawingCantBecomeCurrent)
{
    CKvDrawingBuilder builder;
    builder.withReservedLineStyles();
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbDatabasePtr other = builder.open();

    EXPECT_THROW(drawing->setCELTYPE(other->getLinetypeByLayerId()), OdError_InvalidSysvarValue);
    EXPECT_THROW(drawing->setCELTYPE(OdDbObjectId()), OdError_InvalidSysvarValue);
}

TEST(TextStyleVariable, IsReadAndWrittenInTheHeader)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().textStyle("NOTES");
    builder.currentTextStyle("notes");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(nameOf(drawing->getTEXTSTYLE()), "NOTES");
    drawing->setTEXTSTYLE(recordId(drawing->getTextStyleTableId(), "Standard"));

    EXPECT_TRUE(CKvDrawingFile::toBytes(*drawing).contains("  9\n$TEXTSTYLE\n  7\nStandard\n"));
}

TEST(TextStyleVariable, IsStandardWhereTheFileHasNoneAndRefusesAForeignStyle)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbDatabasePtr other = builder.open();

    EXPECT_EQ(nameOf(drawing->getTEXTSTYLE()), "Standard");
    EXPECT_THROW(drawing->setTEXTSTYLE(other->getTEXTSTYLE()), OdError_InvalidSysvarValue);
    EXPECT_THROW(drawing->setTEXTSTYLE(OdDbObjectId()), OdError_InvalidSysvarValue);
}

TEST(EntityLineStyle, IsByLayerWhereTheFileHasNoneAndStandsForItselfWhereTheTableLacksIt)
{
    CKvDrawingBuilder builder;
    builder.withReservedLineStyles().lineStyle("DASHED");
    builder.modelSpace().line();
    builder.modelSpace().line().lineStyle("dashed");
    builder.modelSpace().line().lineStyle("GONE");
    const OdDbDatabasePtr drawing = builder.open();
    const std::vector<OdDbEntityPtr> entities = entitiesOf(drawing);

    EXPECT_EQ(entities[0]->linetypeId(), drawing->getLinetypeByLayerId());
    EXPECT_EQ(entities[1]->linetypeId(), recordId(drawing->getLinetypeTableId(), "DASHED"));
    EXPECT_EQ(nameOf(entities[2]->linetypeId()), "GONE");
}

TEST(EntityLineStyle, IsWrittenBehindTheLayer)
{
    CKvDrawingBuilder builder;
    builder.withReservedLineStyles().lineStyle("DASHED");
    builder.modelSpace().line();
    builder.modelSpace().line().lineStyle("Continuous");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbObjectId dashed = recordId(drawing->getLinetypeTableId(), "DASHED");

    for (const OdDbEntityPtr &entity : entitiesOf(drawing)) {
        entity->setLinetype(dashed);
    }

    const QByteArray bytes = CKvDrawingFile::toBytes(*drawing);
    EXPECT_EQ(bytes.count("  8\n0\n  6\nDASHED\n100\nAcDbLine\n"), 2);
    EXPECT_FALSE(bytes.contains("  6\nContinuous\n"));
}

TEST(EntityLineStyle, PartsOfAPolylineGoAlongWhereTheyHadTheSame)
{
    CKvDrawingBuilder builder;
    builder.withReservedLineStyles().lineStyle("DASHED");
    builder.lineStyle("CENTER");
    CKvEntityBuilder &polyline = builder.modelSpace().polyline().lineStyle("CENTER");
    polyline.vertex(0, 0).lastChild().lineStyle("center");
    polyline.vertex(1, 1);
    polyline.endMark().lineStyle("CENTER");
    builder.modelSpace().line().lineStyle("CENTER");
    const OdDbDatabasePtr drawing = builder.open();

    entitiesOf(drawing)[0]->setLinetype(recordId(drawing->getLinetypeTableId(), "DASHED"));

    const QByteArray bytes = CKvDrawingFile::toBytes(*drawing);
    EXPECT_EQ(bytes.count("  6\nDASHED\n"), 3);
    EXPECT_EQ(bytes.count("  6\nCENTER\n"), 1);
}

TEST(EntityLineStyle, PartsStayWhereTheyAreNotMeant)
{
    CKvDrawingBuilder builder;
    builder.withReservedLineStyles().lineStyle("DASHED");
    builder.modelSpace().polyline().vertex(0, 0);
    const OdDbDatabasePtr drawing = builder.open();

    entitiesOf(drawing)[0]->setLinetype(recordId(drawing->getLinetypeTableId(), "DASHED"),
                                        /*doSubents*/ false);

    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing).count("  6\nDASHED\n"), 1);
}

TEST(EntityLineStyle, OneOfAnotherDrawingIsRefused)
{
    CKvDrawingBuilder builder;
    builder.withReservedLineStyles();
    builder.modelSpace().line();
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbDatabasePtr other = builder.open();
    const OdDbEntityPtr line = entitiesOf(drawing)[0];

    EXPECT_THROW(line->setLinetype(other->getLinetypeByLayerId()), OdError);
    EXPECT_THROW(line->setLinetype(OdDbObjectId()), OdError);
}

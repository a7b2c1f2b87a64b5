// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbEntity.h"
#include "OdDbLayerTableRecord.h"
#include "drawingText.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

/// The names of the layers that nothing holds, "FREE LOOSE".
std::string purgeableLayers(const OdDbDatabasePtr &drawing, const std::vector<const char *> &names)
{
    OdDbObjectIdArray ids;
    for (const char *name : names) {
        ids.append(recordId(drawing->getLayerTableId(), name));
    }
    drawing->purgeIds(ids);
    std::string text;
    for (const OdDbObjectId id : ids) {
        text += (text.empty() ? "" : " ") + nameOf(id);
    }
    return text;
}

struct PointerCase {
    const char *name;
    int code;
    bool isKeeping;
};

const PointerCase kPointers[] = {
    { "FirstOfTheKeptHandles", 320, true }, { "LastOfTheKeptHandles", 329, true },
    { "FirstSoftPointer", 330, false },     { "LastSoftPointer", 339, false },
    { "HardPointer", 340, true },           { "LastOwnership", 369, true },
    { "Lineweight", 370, false },           { "FirstOfThePlotStyles", 390, true },
    { "LastOfThePlotStyles", 399, true },   { "AText", 410, false },
    { "FirstOfTheTwoLast", 480, true },     { "SecondOfTheTwoLast", 481, true },
};

class Pointer : public testing::TestWithParam<PointerCase>
{
};

} // namespace

TEST_P(Pointer, OfAnObjectAnEntityOrARecordHoldsALayerOrNot)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    for (const char *name : { "OBJECT", "ENTITY", "RECORD" }) {
        builder.layer(name);
    }
    const int code = GetParam().code;
    builder.namedObjects().object("IDBUFFER", "X").handleOf(code, "LAYER", "OBJECT");
    builder.modelSpace().line().handleOf(code, "LAYER", "ENTITY");
    builder.textStyle("NOTES").handleOf(code, "LAYER", "RECORD");

    EXPECT_EQ(purgeableLayers(builder.open(), { "OBJECT", "ENTITY", "RECORD" }),
              GetParam().isKeeping ? "" : "OBJECT ENTITY RECORD");
}

INSTANTIATE_TEST_SUITE_P(To, Pointer, testing::ValuesIn(kPointers), [](const auto &row) {
    return std::string(row.param.name);
});

TEST(Purging, TheHeadOfTheOwnTableHoldsNoRecord)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    builder.dimStyle("FREE").handle("ABC");
    QByteArray bytes = builder.toBytes();
    bytes.replace("TABLE\n  2\nDIMSTYLE\n", "TABLE\n  2\nDIMSTYLE\n340\nABC\n");
    ASSERT_NE(bytes, builder.toBytes());
    const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes);
    OdDbObjectIdArray ids;
    ids.append(recordId(drawing->getDimStyleTableId(), "FREE"));

    drawing->purgeIds(ids);

    EXPECT_EQ(ids.size(), 1U);
}

TEST(Purging, ALayerIsFreeOnceItsLastEntityHasMovedOrIsErased)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    for (const char *name : { "MOVED", "ERASED", "USED" }) {
        builder.layer(name);
    }
    builder.modelSpace().line("MOVED").handle("A01");
    builder.modelSpace().line("ERASED").handle("A02");
    builder.modelSpace().line("USED").handle("A03");
    const OdDbDatabasePtr drawing = builder.open();
    EXPECT_EQ(purgeableLayers(drawing, { "MOVED", "ERASED", "USED" }), "");

    OdDbEntityPtr(drawing->getOdDbObjectId(OdDbHandle(0xA01)).openObject(OdDb::kForWrite))
        ->setLayer(recordId(drawing->getLayerTableId(), "USED"));
    drawing->getOdDbObjectId(OdDbHandle(0xA02)).openObject(OdDb::kForWrite)->erase();

    EXPECT_EQ(purgeableLayers(drawing, { "MOVED", "ERASED", "USED" }), "MOVED ERASED");
}

TEST(Purging, AVertexAloneHoldsItsLayer)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    builder.layer("LINES");
    builder.layer("VERTICES");
    builder.modelSpace().polyline("LINES").vertex(0, 0).lastChild().layer("VERTICES");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(purgeableLayers(drawing, { "LINES", "VERTICES" }), "");
}

TEST(Erasing, APointerOfAnEntityToAnErasedRecordIsWrittenAsZero)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    builder.layer("GONE").handle("ABC");
    builder.modelSpace().line().handleOf(340, "LAYER", "GONE");
    builder.modelSpace().line().extendedData("APP", { { 1005, "ABC" } });
    const OdDbDatabasePtr drawing = builder.open();

    recordId(drawing->getLayerTableId(), "GONE").openObject(OdDb::kForWrite)->erase();

    const QByteArray saved = CKvDrawingFile::toBytes(*drawing);
    EXPECT_TRUE(saved.contains("340\n0\n"));
    EXPECT_TRUE(saved.contains("1005\n0\n"));
    EXPECT_FALSE(saved.contains("ABC\n"));
}

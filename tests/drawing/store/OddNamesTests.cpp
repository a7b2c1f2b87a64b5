// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "CKvDxfError.h"
#include "OdDbDictionary.h"
#include "OdDbIdMapping.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTable.h"
#include "OdDbLinetypeTableRecord.h"
#include "drawingText.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

namespace
{

OdDbLayerTableRecordPtr layerOf(const OdDbDatabasePtr &drawing, const char *name)
{
    return OdDbLayerTableRecordPtr(
        recordId(drawing->getLayerTableId(), name).openObject(OdDb::kForWrite));
}

std::string keysText(const OdDbDictionary &dictionary, OdDbDictionary::IteratorType type)
{
    std::string keys;
    for (OdDbDictionaryIteratorPtr walk = dictionary.newIterator(type); !walk->done();
         walk->next()) {
        keys += (keys.empty() ? "" : " ") + walk->name().toQString().toStdString();
    }
    return keys;
}

/// Code of the OdError that an action throws, 0 for none.
template <class Action> int codeOf(Action action)
{
    try {
        action();
    } catch (const OdError &error) {
        return error.code();
    }
    return 0;
}

} // namespace

TEST(MissingLineStyle, EachLayerGetsItBackAsItSpellsIt)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    builder.layer("A").lineStyle("Gone");
    builder.layer("B").lineStyle("GONE");
    builder.layer("C").lineStyle("Gone");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(layersText(*drawing),
              "0 white Continuous -3\nA white Gone -3\nB white GONE -3\nC white Gone -3\n");
    EXPECT_EQ(layerOf(drawing, "A")->linetypeObjectId(), layerOf(drawing, "C")->linetypeObjectId());
    EXPECT_TRUE(recordId(drawing->getLinetypeTableId(), "gone").isNull());
    EXPECT_FALSE(CKvDrawingFile::isChanged(*drawing));
}

TEST(MissingLineStyle, GivenToAnotherLayerKeepsItsSpelling)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    builder.layer("A").lineStyle("Gone");
    builder.layer("B").lineStyle("Continuous");
    const OdDbDatabasePtr drawing = builder.open();

    layerOf(drawing, "B")->setLinetypeObjectId(layerOf(drawing, "A")->linetypeObjectId());

    EXPECT_EQ(layersText(*drawing), "0 white Continuous -3\nA white Gone -3\nB white Gone -3\n");
}

TEST(LineStyleName, BytesThatTheCodePageDoesNotKnowGoToALayerAsTheyAre)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().header("DWGCODEPAGE", 3, "ANSI_932");
    builder.lineStyle("ODD").dashes({ 1, -1 });
    builder.layer("WALLS").lineStyle("Continuous");
    QByteArray bytes = builder.toBytes();
    bytes.replace("  2\nODD\n", "  2\nOD\xff\x80\n");
    const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes);
    OdDbObjectId odd;
    const OdDbLinetypeTablePtr styles(drawing->getLinetypeTableId().openObject());
    for (auto walk = styles->newIterator(); !walk->done(); walk->step()) {
        odd = walk->getRecordId();
    }

    layerOf(drawing, "WALLS")->setLinetypeObjectId(odd);

    EXPECT_TRUE(CKvDrawingFile::toBytes(*drawing).contains("  6\nOD\xff\x80\n"));
    EXPECT_EQ(layerOf(drawing, "WALLS")->linetypeObjectId(), odd);
}

TEST(OddName, ASlashThatTheFileHasStaysInLineStylesAndColourBooks)
{
    CKvDrawingBuilder builder("AC1032");
    builder.withDefaults();
    builder.lineStyle("DASH/DOT").dashes({ 1, -1 });
    builder.layer("A").lineStyle("DASH/DOT").trueColor(1, 2, 3, 5).colorBook("RAL/DESIGN$RAL 1/2");
    builder.layer("B");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbLayerTableRecordPtr from = layerOf(drawing, "A");

    {
        const OdDbLayerTableRecordPtr to = layerOf(drawing, "B");
        to->setColor(from->color());
        to->setLinetypeObjectId(from->linetypeObjectId());
    }

    const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));
    EXPECT_EQ(layersText(*again),
              "0 white Continuous -3\nA RAL/DESIGN$RAL 1/2 DASH/DOT -3\n"
              "B RAL/DESIGN$RAL 1/2 DASH/DOT -3\n");
    const OdDbLinetypeTableRecordPtr style(
        recordId(drawing->getLinetypeTableId(), "dash/dot").openObject(OdDb::kForWrite));
    EXPECT_EQ(codeOf([&] { style->setName(OdString("DASH/DOT")); }), 0);
    EXPECT_EQ(codeOf([&] { style->setName(OdString("DOT/DASH")); }), int(OdResult::kInvalidInput));
}

TEST(LoadingALineStyle, AFaultyDefinitionIsAnErrorOfAnotherCodeThanAMissingOne)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("own.lin")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("*FAULTY,no numbers\nA,long,short\n*HEADLESS,nothing\n");
    file.close();
    CKvDrawingBuilder builder;
    builder.withDefaults();
    const OdDbDatabasePtr drawing = builder.open();
    const auto load = [&](const char *name) {
        return codeOf(
            [&] { drawing->loadLineTypeFile(OdString(name), OdString(file.fileName())); });
    };

    EXPECT_EQ(load("FAULTY"), int(OdResult::kUnreadableFile));
    EXPECT_EQ(load("HEADLESS"), int(OdResult::kUnreadableFile));
    EXPECT_EQ(load("MISSING"), int(OdResult::kUndefinedLineType));
    EXPECT_FALSE(CKvDrawingFile::isChanged(*drawing));
}

TEST(Cloning, WithoutADestinationOrIntoATableOfAnotherDrawingIsRefused)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    builder.lineStyle("DASHED").dashes({ 1, -1 });
    const OdDbDatabasePtr source = builder.open();
    const OdDbDatabasePtr destination = builder.open();
    OdDbObjectIdArray ids;
    ids.append(recordId(source->getLinetypeTableId(), "DASHED"));
    const OdDbIdMappingPtr mapping = OdDbIdMapping::createObject();
    const auto cloneInto = [&](OdDbObjectId owner) {
        return codeOf(
            [&] { source->wblockCloneObjects(ids, owner, *mapping, OdDb::kReplaceDuplicates); });
    };

    EXPECT_EQ(cloneInto(destination->getLinetypeTableId()), int(OdResult::kInvalidInput));
    mapping->setDestDb(destination.get());
    EXPECT_EQ(cloneInto(OdDbObjectId()), int(OdResult::kInvalidInput));
    EXPECT_EQ(cloneInto(source->getLinetypeTableId()), int(OdResult::kInvalidInput));
    EXPECT_EQ(cloneInto(destination->getLinetypeTableId()), 0);
}

TEST(DictionaryEntries, KeysBeyondTheFirstPlaneStandBehindAllOthersInTheirOrder)
{
    // U+FFEE is less than U+1D11E as a code point, but more than its first UTF-16 unit.
    CKvDrawingBuilder builder("AC1032");
    builder.withDefaults();
    for (const char *key : { "\xF0\x9D\x84\x9E", "\xEF\xBF\xAE", "a", "\xF0\x90\x80\x80" }) {
        builder.namedObjects().xrecord(key).group(1, "x");
    }
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbDictionaryPtr root(drawing->getNamedObjectsDictionaryId().openObject());

    EXPECT_EQ(keysText(*root, OdDbDictionary::IteratorType::kSortedByKey),
              "a \xEF\xBF\xAE \xF0\x90\x80\x80 \xF0\x9D\x84\x9E");
}

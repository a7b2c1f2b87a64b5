// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "drawingText.h"

#include "OdDbLayerTableRecord.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

/// The groups of a drawing as "code=value", one a line, from the first that has this value on.
std::string groupsFrom(const QByteArray &bytes, const char *value, int count)
{
    const QList<QByteArray> lines = bytes.split('\n');
    std::string text;
    for (int i = 0; i + 1 < lines.size() && count > 0; i += 2) {
        if (!text.empty() || lines.at(i + 1) == value) {
            text +=
                lines.at(i).trimmed().toStdString() + '=' + lines.at(i + 1).toStdString() + '\n';
            --count;
        }
    }
    return text;
}

} // namespace

TEST(DrawingBuilder, WhatWasToldIsInTheDrawingAndNothingElse)
{
    CKvDrawingBuilder drawing;
    drawing.layer("WALLS").color(1).lineWeight(25).lineStyle("DASHED");

    const OdDbDatabasePtr database = drawing.open();

    EXPECT_EQ(layersText(*database), "WALLS red DASHED 25\n");
    EXPECT_EQ(namesText(database->getLinetypeTableId()), "");
    EXPECT_EQ(namesText(database->getTextStyleTableId()), "");
    EXPECT_EQ(namesText(database->getDimStyleTableId()), "");
    EXPECT_EQ(namesText(database->getBlockTableId()), "*Model_Space\n*Paper_Space\n");
}

TEST(DrawingBuilder, ARecordIsWrittenWithHandleOwnerAndMarkers)
{
    CKvDrawingBuilder drawing;
    drawing.layer("WALLS").handle("AB").without(6);

    const QByteArray bytes = drawing.toBytes();

    EXPECT_EQ(groupsFrom(bytes, "AB", 7),
              "5=AB\n330=11\n100=AcDbSymbolTableRecord\n100=AcDbLayerTableRecord\n2=WALLS\n70=0\n"
              "62=7\n");
}

TEST(DrawingBuilder, ADrawingIsReadWithoutAWarning)
{
    for (const char *version : { "AC1009", "AC1012", "AC1015", "AC1018", "AC1021", "AC1032" }) {
        CKvDrawingBuilder drawing(version);
        drawing.withDefaults().standardsFiles({ QStringLiteral("C:/office.dxf") });
        drawing.layer("WALLS").stamped(1, "anna");
        drawing.block("DOOR").line("WALLS");
        drawing.modelSpace().insert("DOOR").attribute("NO", "17");
        drawing.modelSpace().polyline().vertex(0, 0).vertex(1, 1);
        drawing.modelSpace().dimension("Standard");
        drawing.modelSpace().leader("Standard");
        drawing.modelSpace().multilineText("text");

        const OdDbDatabasePtr database = drawing.open();

        EXPECT_EQ(CKvDrawingFile::warnings(*database), QStringList()) << version;
        EXPECT_EQ(CKvDrawingFile::version(*database), QLatin1String(version));
        EXPECT_EQ(CKvDrawingFile::toBytes(*database), drawing.toBytes()) << version;
    }
}

TEST(DrawingBuilder, TextsAreReadAsTheyWereTold)
{
    for (const char *version : { "AC1009", "AC1015", "AC1021" }) {
        CKvDrawingBuilder drawing(version);
        drawing.layer("Wände € Ω");

        EXPECT_EQ(namesText(drawing.open()->getLayerTableId()), "Wände € Ω\n") << version;
    }
}

TEST(DrawingBuilder, AHandleOfARecordIsFilledInWhereverTheRecordStands)
{
    CKvDrawingBuilder drawing;
    drawing.lineStyle("TEXTED").handleOf(340, "STYLE", "NOTES");
    drawing.textStyle("NOTES").handle("1F0");

    EXPECT_TRUE(drawing.toBytes().contains("340\n1F0\n"));
}

TEST(DrawingBuilder, HandlesThatWereChosenAreGivenToNothingElse)
{
    CKvDrawingBuilder drawing;
    drawing.layer("FIRST").handle("10");
    drawing.layer("SECOND");
    drawing.modelSpace().line().handle("11");

    const OdDbDatabasePtr database = drawing.open();

    EXPECT_EQ(nameOf(database->getOdDbObjectId(OdDbHandle(0x10))), "FIRST");
    EXPECT_EQ(drawing.toBytes().count("\n  5\n10\n"), 1);
    EXPECT_EQ(drawing.toBytes().count("\n  5\n11\n"), 1);
}

TEST(DrawingBuilder, ADrawingOfR12HasHandlesOnlyWhenToldSo)
{
    CKvDrawingBuilder plain("AC1009");
    plain.layer("WALLS");
    CKvDrawingBuilder handled = plain;
    handled.withHandles();

    EXPECT_EQ(plain.toBytes().count("\n  5\n"), 0);
    EXPECT_FALSE(recordId(handled.open()->getLayerTableId(), "WALLS").handle().isNull());
}

TEST(DrawingBuilder, ACopyIsIndependent)
{
    CKvDrawingBuilder drawing;
    drawing.layer("WALLS");
    CKvDrawingBuilder copy = drawing;

    copy.layer("DOORS");

    EXPECT_EQ(namesText(drawing.open()->getLayerTableId()), "WALLS\n");
    EXPECT_EQ(namesText(copy.open()->getLayerTableId()), "WALLS\nDOORS\n");
}

TEST(DrawingBuilder, TheFileIsTheDrawing)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("walls.dxf"));
    CKvDrawingBuilder drawing;
    drawing.layer("WALLS");

    drawing.saveTo(path);

    EXPECT_EQ(namesText(CKvDrawingFile::open(path)->getLayerTableId()), "WALLS\n");
}

TEST(DrawingBuilder, DrawingsAreKeptUnderTheNameOfTheTest)
{
    const QTemporaryDir folder;
    const QByteArray before = qgetenv("KV_TEST_KEEP");
    qputenv("KV_TEST_KEEP", QFile::encodeName(folder.path()));

    CKvDrawingBuilder().open();
    CKvDrawingBuilder().open();
    before.isEmpty() ? qunsetenv("KV_TEST_KEEP") : qputenv("KV_TEST_KEEP", before);

    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files, QDir::Name),
              QStringList(
                  { QStringLiteral("DrawingBuilder.DrawingsAreKeptUnderTheNameOfTheTest-1.dxf"),
                    QStringLiteral("DrawingBuilder.DrawingsAreKeptUnderTheNameOfTheTest-2.dxf") }));
}

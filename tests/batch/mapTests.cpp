// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include "CKvDrawingFile.h"
#include "drawingText.h"

#include <gmock/gmock.h>

using ::testing::HasSubstr;

namespace
{

class BatchMap : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        save(QStringLiteral("std.dxf"), officeStandards());
        CKvDrawingBuilder other;
        other.layer("WALLS").color(6);
        save(QStringLiteral("other.dxf"), other);
        drawing.layer("FLUR");
        drawing.layer("Tür").color(1);
        save(QStringLiteral("a.dxf"), drawing);
    }
    CKvBatchRun fix(const QByteArray &map, const QStringList &more = {}) const
    {
        write(QStringLiteral("map.csv"), map);
        return run(QStringList { QStringLiteral("fix"),
                                 QStringLiteral("a.dxf"),
                                 QStringLiteral("-s"),
                                 QStringLiteral("std.dxf"),
                                 QStringLiteral("-s"),
                                 QStringLiteral("other.dxf"),
                                 QStringLiteral("-f"),
                                 QStringLiteral("json"),
                                 QStringLiteral("-o"),
                                 QStringLiteral("out"),
                                 QStringLiteral("--map"),
                                 QStringLiteral("map.csv") }
                   + more);
    }
    std::string layers() const
    {
        return layersText(*CKvDrawingFile::open(path(QStringLiteral("out/a.dxf"))));
    }
    static std::string list(const CKvBatchRun &run, const char *key)
    {
        return firstDrawing(run).at(key).dump();
    }

    CKvDrawingBuilder drawing { "AC1032" };
};

} // namespace

TEST_F(BatchMap, NamesTheCandidateOfANameViolation)
{
    const CKvBatchRun result = fix("category,name,target\nlayers,FLUR,WALLS\nlayers,Tür,DOORS\n");

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(layers(), "WALLS blue Continuous 50\nDOORS green Continuous -3\n");
    EXPECT_EQ(firstDrawing(result).at("repaired").size(), 2U);
    EXPECT_EQ(firstDrawing(result).at("repaired").at(0).dump(),
              "{\"category\":\"layers\",\"name\":\"FLUR\",\"target\":\"WALLS\",\"standardsFile\":\""
                  + fullPath(QStringLiteral("std.dxf")) + "\"}");
    EXPECT_EQ(result.errors, "");
}

TEST_F(BatchMap, ARowMayNameTheFileByPathOrByName)
{
    for (const QString &file : { QStringLiteral("other.dxf"),
                                 QStringLiteral("./other.dxf"),
                                 path(QStringLiteral("other.dxf")) }) {
        fix("category,name,target,standards file\nlayers,FLUR,WALLS," + file.toUtf8() + "\n");

        EXPECT_EQ(layers(), "WALLS magenta Continuous -3\nTür red Continuous -3\n")
            << file.toStdString();
    }
}

TEST_F(BatchMap, ARowWithoutSuchACandidateIsReportedAnd3)
{
    const CKvBatchRun result = fix("category,name,target,standards file\n"
                                   "layers,FLUR,walls,\n"
                                   "layers,Tür,DOORS,other.dxf\n");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(list(result, "repaired"), "[]");
    EXPECT_EQ(list(result, "notRepaired"),
              R"([{"category":"layers","name":"FLUR","target":"walls","standardsFile":"",)"
              R"("error":"The standards offer no candidate of this name (line 2 of the map)."},)"
              R"({"category":"layers","name":"Tür","target":"DOORS","standardsFile":"other.dxf",)"
              R"("error":"The standards offer no candidate of this name (line 3 of the map)."}])");
    EXPECT_EQ(violations(result), "layers.name FLUR\nlayers.name Tür\n");
    EXPECT_EQ(bytes(QStringLiteral("out/a.dxf")), drawing.toBytes());
}

TEST_F(BatchMap, AViolationWithARecommendedCandidateTakesThat)
{
    drawing.layer("DOORS").color(1);
    save(QStringLiteral("a.dxf"), drawing);

    const CKvBatchRun result = fix("category,name,target\nlayers,DOORS,WALLS\n");

    EXPECT_THAT(layers(), HasSubstr("DOORS green Continuous -3\n"));
    EXPECT_EQ(result.errors, "Line 2 of the map was not used: layers DOORS\n");
}

TEST_F(BatchMap, RowsThatNoDrawingUsedAreNamedAndDoNotChangeTheStatus)
{
    const CKvBatchRun result = fix("category,name,target\n"
                                   "layers,FLUR,WALLS\n"
                                   "layers,Tür,DOORS\n"
                                   "layers,Keller,WALLS\n"
                                   "textstyles,FLUR,WALLS\n");

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors,
              "Line 4 of the map was not used: layers Keller\n"
              "Line 5 of the map was not used: textstyles FLUR\n");
}

TEST_F(BatchMap, ARowThatAnyDrawingUsedIsUsedAlsoByAWorker)
{
    save(QStringLiteral("b.dxf"), cleanDrawing());

    const CKvBatchRun result =
        fix("category,name,target\nlayers,FLUR,WALLS\nlayers,KELLER,WALLS\n",
            { QStringLiteral("b.dxf"), QStringLiteral("-j"), QStringLiteral("2") });

    EXPECT_EQ(result.errors, "Line 3 of the map was not used: layers KELLER\n");
}

TEST_F(BatchMap, TheOwnSpellingWinsOverAnotherLetterCase)
{
    const CKvBatchRun result =
        fix("category,name,target\nlayers,flur,DOORS\nlayers,FLUR,WALLS\nlayers,TÜR,DOORS\n");

    EXPECT_EQ(layers(), "WALLS blue Continuous 50\nDOORS green Continuous -3\n");
    EXPECT_EQ(result.errors, "Line 2 of the map was not used: layers flur\n");
}

TEST_F(BatchMap, MergingMovesTheEntitiesAndPurgesTheOldLayer)
{
    drawing.layer("WALLS").color(5).lineWeight(50);
    drawing.modelSpace().line("FLUR");
    drawing.modelSpace().line("Tür");
    save(QStringLiteral("a.dxf"), drawing);

    const CKvBatchRun result = fix("category,name,target\nlayers,FLUR,WALLS\n");

    const OdDbDatabasePtr merged = CKvDrawingFile::open(path(QStringLiteral("out/a.dxf")));
    EXPECT_EQ(layersText(*merged), "Tür red Continuous -3\nWALLS blue Continuous 50\n");
    EXPECT_EQ(entityLayersText(*merged), "*Model_Space LINE WALLS\n*Model_Space LINE Tür\n");
    EXPECT_EQ(violations(result), "layers.name Tür\n");
}

TEST_F(BatchMap, AnObjectThatAnEarlierRepairRemovedIsPassedOver)
{
    // Once the first of two layers of one name is merged, nothing refers to the second.
    drawing = CKvDrawingBuilder("AC1032");
    drawing.layer("FLUR");
    drawing.layer("FLUR2");
    drawing.layer("WALLS").color(5).lineWeight(50);
    save(QStringLiteral("a.dxf"), drawing);

    const CKvBatchRun result = fix("category,name,target\nlayers,FLUR,WALLS\nlayers,FLUR2,WALLS\n");

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(layers(), "WALLS blue Continuous 50\n");
    EXPECT_EQ(list(result, "notRepaired"), "[]");
}

TEST_F(BatchMap, ARepairThatThrowsLeavesNothingBehindAndTheOthersAreDone)
{
    // Layer 0 can't be renamed, and that shows only after its values were set.
    drawing = CKvDrawingBuilder("AC1032");
    drawing.layer("0").color(1);
    drawing.layer("FLUR");
    save(QStringLiteral("a.dxf"), drawing);
    CKvDrawingBuilder standards;
    standards.layer("WALLS").color(5);
    standards.layer("DOORS").color(3);
    save(QStringLiteral("std.dxf"), standards);

    const CKvBatchRun result = fix("category,name,target\nlayers,0,WALLS\nlayers,FLUR,DOORS\n");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(layers(), "0 red Continuous -3\nDOORS green Continuous -3\n");
    EXPECT_EQ(firstDrawing(result).at("repaired").size(), 1U);
    EXPECT_EQ(firstDrawing(result).at("repaired").at(0).at("name"), "FLUR");
    ASSERT_EQ(firstDrawing(result).at("notRepaired").size(), 1U);
    EXPECT_EQ(firstDrawing(result).at("notRepaired").at(0).at("name"), "0");
    EXPECT_NE(firstDrawing(result).at("notRepaired").at(0).at("error"), "");
    EXPECT_EQ(firstDrawing(result).at("status"), "checked");
}

TEST_F(BatchMap, AMapThatIsNoneIsWrongUsageThatNamesTheLine)
{
    const auto expectWrong = [this](const QByteArray &map, const char *text) {
        const CKvBatchRun result = fix(map);
        EXPECT_EQ(result.status, 2) << map.toStdString();
        EXPECT_EQ(result.errors, text);
        EXPECT_EQ(result.output, "");
        EXPECT_FALSE(exists(QStringLiteral("out")));
    };

    expectWrong("",
                "map.csv:1: The first row must be category,name,target or "
                "category,name,target,standards file.\n");
    expectWrong("layers,FLUR,WALLS\n",
                "map.csv:1: The first row must be category,name,target or "
                "category,name,target,standards file.\n");
    expectWrong("category,name,target\n\nlayers,FLUR\n",
                "map.csv:3: The row has 2 cells; it must have 3 or 4.\n");
    expectWrong("category,name,target\nlayer,FLUR,WALLS\n",
                "map.csv:2: There is no category \"layer\".\n");
}

TEST_F(BatchMap, AMapThatCannotBeReadIsWrongUsage)
{
    const CKvBatchRun result = run({ QStringLiteral("fix"),
                                     QStringLiteral("a.dxf"),
                                     QStringLiteral("-o"),
                                     QStringLiteral("out"),
                                     QStringLiteral("--map"),
                                     QStringLiteral("gone.csv") });

    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr("The map gone.csv can't be read: "));
}

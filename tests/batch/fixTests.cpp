// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include "CKvDrawingFile.h"
#include "drawingText.h"

#include <gmock/gmock.h>

#include <QFile>

using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace
{

class BatchFix : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        save(QStringLiteral("std.dxf"), officeStandards());
        save(QStringLiteral("clean.dxf"), cleanDrawing());
        save(QStringLiteral("red.dxf"), redWalls());
    }
    CKvBatchRun fix(const char *arguments) const
    {
        return run(QStringLiteral("fix -s std.dxf -f json ")
                       .append(QString::fromUtf8(arguments))
                       .split(QLatin1Char(' ')));
    }
    /// "category name as target", a line for each entry of the list, with the error behind it.
    static std::string repairs(const CKvBatchRun &run, const char *list = "repaired")
    {
        std::string lines;
        const auto drawing = firstDrawing(run);
        for (const auto &entry : drawing.at(list)) {
            lines += entry.at("category").get<std::string>() + " "
                + entry.at("name").get<std::string>() + " as "
                + entry.at("target").get<std::string>()
                + (entry.contains("error") ? ": " + entry.at("error").get<std::string>()
                                           : std::string())
                + "\n";
        }
        return lines;
    }
    std::string layersOf(const char *name) const
    {
        return layersText(*CKvDrawingFile::open(path(QString::fromUtf8(name))));
    }
};

/// The red drawing with WALLS as the repair leaves it.
QByteArray repaired(const CKvDrawingBuilder &drawing)
{
    QByteArray bytes = drawing.toBytes();
    const int walls = bytes.indexOf("WALLS");
    const int color = bytes.indexOf(" 62\n", walls);
    const int value = bytes.indexOf('1', color + 4);
    return bytes.replace(value, 1, "5");
}

} // namespace

TEST_F(BatchFix, AppliesTheRecommendedCandidateAndReportsTheCheckAfterIt)
{
    const CKvBatchRun result = fix("red.dxf -o out");

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(repairs(result), "layers WALLS as WALLS\n");
    EXPECT_EQ(repairs(result, "notRepaired"), "");
    EXPECT_EQ(violations(result), "");
    EXPECT_EQ(firstDrawing(result).at("path"), "red.dxf");
    EXPECT_EQ(firstDrawing(result).at("output"), "out/red.dxf");
    EXPECT_EQ(firstDrawing(result).at("repaired").at(0).at("standardsFile"),
              fullPath(QStringLiteral("std.dxf")));
    EXPECT_EQ(bytes(QStringLiteral("out/red.dxf")), repaired(redWalls()));
    EXPECT_EQ(bytes(QStringLiteral("red.dxf")), redWalls().toBytes());
}

TEST_F(BatchFix, ASecondRunFindsNothingToDo)
{
    fix("red.dxf -o out");

    const CKvBatchRun again = fix("out/red.dxf --in-place");

    EXPECT_EQ(again.status, 0);
    EXPECT_EQ(repairs(again), "");
    EXPECT_EQ(firstDrawing(again).at("output"), "");
    EXPECT_EQ(files(QStringLiteral("out")), "red.dxf");
}

TEST_F(BatchFix, InPlaceReplacesTheDrawingAfterACopy)
{
    const CKvBatchRun result = fix("red.dxf --in-place");

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(firstDrawing(result).at("output"), "red.dxf");
    EXPECT_EQ(bytes(QStringLiteral("red.dxf")), repaired(redWalls()));
    EXPECT_EQ(bytes(QStringLiteral("red.dxf.bak")), redWalls().toBytes());
    EXPECT_EQ(files(), "clean.dxf red.dxf red.dxf.bak std.dxf");
}

TEST_F(BatchFix, NoBackupMakesNoCopy)
{
    fix("red.dxf --in-place --no-backup");

    EXPECT_EQ(bytes(QStringLiteral("red.dxf")), repaired(redWalls()));
    EXPECT_EQ(files(), "clean.dxf red.dxf std.dxf");
}

TEST_F(BatchFix, InPlaceLeavesADrawingWithoutAChangeAlone)
{
    EXPECT_EQ(fix("clean.dxf --in-place").status, 0);
    EXPECT_EQ(files(), "clean.dxf red.dxf std.dxf");
    EXPECT_EQ(bytes(QStringLiteral("clean.dxf")), cleanDrawing().toBytes());
}

TEST_F(BatchFix, ADrawingWithoutAChangeIsWrittenToTheFolderToo)
{
    const CKvBatchRun result = fix("clean.dxf -o out");

    EXPECT_EQ(firstDrawing(result).at("output"), "out/clean.dxf");
    EXPECT_EQ(bytes(QStringLiteral("out/clean.dxf")), cleanDrawing().toBytes());
}

TEST_F(BatchFix, ThePathBelowAFolderIsKept)
{
    save(QStringLiteral("plans/eg/a.dxf"), redWalls());
    save(QStringLiteral("plans/og/a.dxf"), redWalls());

    const CKvBatchRun result = fix("plans red.dxf -o out");

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(files(QStringLiteral("out")), "eg/a.dxf og/a.dxf red.dxf");
}

TEST_F(BatchFix, ADryRunWritesNothingAndTellsWhatItWouldDo)
{
    for (const char *target : { "", " -o out", " --in-place" }) {
        const CKvBatchRun result = fix(("red.dxf --dry-run" + std::string(target)).c_str());

        EXPECT_EQ(result.status, 1) << target;
        EXPECT_EQ(repairs(result), "layers WALLS as WALLS\n");
        EXPECT_EQ(violations(result), "layers.properties WALLS\n");
        EXPECT_EQ(firstDrawing(result).at("output"), "");
        EXPECT_EQ(files(), "clean.dxf red.dxf std.dxf");
        EXPECT_EQ(bytes(QStringLiteral("red.dxf")), redWalls().toBytes());
    }
}

TEST_F(BatchFix, AnIgnoredViolationIsLeftAlone)
{
    CKvDrawingBuilder drawing;
    drawing.layer("WALLS").color(1).lineWeight(50).stamped(1, "anna");
    drawing.layer("DOORS").color(1);
    save(QStringLiteral("a.dxf"), drawing);

    const CKvBatchRun result = fix("a.dxf --in-place --include-ignored");

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(repairs(result), "layers DOORS as DOORS\n");
    EXPECT_EQ(violations(result), "layers.properties WALLS\n");
}

TEST_F(BatchFix, ANameViolationHasNoRecommendedCandidateAndStays)
{
    CKvDrawingBuilder drawing;
    drawing.layer("FLUR");
    save(QStringLiteral("a.dxf"), drawing);

    const CKvBatchRun result = fix("a.dxf -o out");

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(repairs(result) + repairs(result, "notRepaired"), "");
    EXPECT_EQ(violations(result), "layers.name FLUR\n");
    EXPECT_EQ(bytes(QStringLiteral("out/a.dxf")), drawing.toBytes());
}

TEST_F(BatchFix, ADrawingWithoutStandardsIsWrittenUnchangedAnd3)
{
    const CKvBatchRun result = run({ QStringLiteral("fix"),
                                     QStringLiteral("red.dxf"),
                                     QStringLiteral("-o"),
                                     QStringLiteral("out"),
                                     QStringLiteral("-f"),
                                     QStringLiteral("json") });

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(firstDrawing(result).at("status"), "no-standards");
    EXPECT_EQ(bytes(QStringLiteral("out/red.dxf")), redWalls().toBytes());
}

TEST_F(BatchFix, ADrawingThatFailsIsNotWrittenAndTheOthersAreDone)
{
    write(QStringLiteral("broken.dxf"), "rubbish\n");

    const CKvBatchRun result = fix("broken.dxf red.dxf -o out -j 1");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(files(QStringLiteral("out")), "red.dxf");
}

TEST_F(BatchFix, AFolderThatCannotBeMadeMakesTheDrawingFail)
{
    write(QStringLiteral("out"), "a file");

    const CKvBatchRun result = fix("red.dxf -o out");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(firstDrawing(result).at("status"), "failed");
    EXPECT_THAT(firstDrawing(result).at("error").get<std::string>(), HasSubstr("out"));
    EXPECT_EQ(repairs(result), "");
    EXPECT_EQ(bytes(QStringLiteral("out")), "a file");
}

TEST_F(BatchFix, TwoDrawingsForOneOutputAreWrongUsage)
{
    save(QStringLiteral("plans/red.dxf"), redWalls());

    const CKvBatchRun result = fix("red.dxf plans/red.dxf -o out");

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "red.dxf and plans/red.dxf would both be written to out/red.dxf.\n");
    EXPECT_EQ(files(QStringLiteral("out")), "");
    EXPECT_EQ(fix("red.dxf ./red.dxf --in-place").status, 2);
}

TEST_F(BatchFix, AnOutputThatIsAnInputIsWrongUsage)
{
    EXPECT_EQ(fix("red.dxf -o .").status, 2);
    EXPECT_EQ(fix("clean.dxf red.dxf -o out/..").status, 2);
    save(QStringLiteral("plans/std.dxf"), redWalls());
    EXPECT_EQ(fix("plans/std.dxf -o .").status, 2);
    EXPECT_EQ(bytes(QStringLiteral("red.dxf")), redWalls().toBytes());
    EXPECT_EQ(bytes(QStringLiteral("std.dxf")), officeStandards().toBytes());
}

TEST_F(BatchFix, WhatNoRepairTouchedStaysByteForByte)
{
    CKvDrawingBuilder drawing;
    drawing.withDefaults();
    drawing.layer("WALLS").color(1).lineWeight(50).group(290, "0");
    drawing.layer("DOORS").color(3);
    drawing.modelSpace().line("WALLS");
    QByteArray odd = drawing.toBytes();
    odd.replace("\n", "\r\n");
    odd.replace("SECTION\r\n  2\r\nENTITIES", "SECTION\r\n2\r\nENTITIES");
    write(QStringLiteral("odd.dxf"), odd);

    fix("odd.dxf -o out");

    QByteArray expected = odd;
    const int color = expected.indexOf("62\r\n", expected.indexOf("WALLS"));
    expected.replace(expected.indexOf('1', color), 1, "5");
    EXPECT_EQ(bytes(QStringLiteral("out/odd.dxf")).toStdString(), expected.toStdString());
}

TEST_F(BatchFix, TheTextReportTellsWhatWasDoneAndWhereItWent)
{
    const CKvBatchRun result = run({ QStringLiteral("fix"),
                                     QStringLiteral("-s"),
                                     QStringLiteral("std.dxf"),
                                     QStringLiteral("red.dxf"),
                                     QStringLiteral("-o"),
                                     QStringLiteral("out") });

    EXPECT_EQ(result.output,
              "red.dxf: no violations\n"
              "  repaired  layers  WALLS  as WALLS in std.dxf\n"
              "  Written to out/red.dxf\n"
              "1 drawing checked: no violations; 1 repaired\n");
}

TEST_F(BatchFix, QuietSaysNothingOfRepairsThatLeaveNothingOpen)
{
    const CKvBatchRun result = run({ QStringLiteral("fix"),
                                     QStringLiteral("-q"),
                                     QStringLiteral("-s"),
                                     QStringLiteral("std.dxf"),
                                     QStringLiteral("red.dxf"),
                                     QStringLiteral("-o"),
                                     QStringLiteral("out") });

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.errors, "");
    EXPECT_EQ(bytes(QStringLiteral("out/red.dxf")), repaired(redWalls()));
}

TEST_F(BatchFix, DiffPrintsTheChangeAndAloneWritesNothing)
{
    const CKvBatchRun result = run({ QStringLiteral("fix"),
                                     QStringLiteral("-s"),
                                     QStringLiteral("std.dxf"),
                                     QStringLiteral("--diff"),
                                     QStringLiteral("red.dxf") });

    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.output, HasSubstr("--- red.dxf\n+++ red.dxf\n@@ -"));
    EXPECT_THAT(result.output, HasSubstr("  62\n-1\n+5\n"));
    EXPECT_EQ(files(), "clean.dxf red.dxf std.dxf");
}

TEST_F(BatchFix, DiffWithATargetWritesToo)
{
    const CKvBatchRun result = run({ QStringLiteral("fix"),
                                     QStringLiteral("-s"),
                                     QStringLiteral("std.dxf"),
                                     QStringLiteral("--diff"),
                                     QStringLiteral("red.dxf"),
                                     QStringLiteral("-o"),
                                     QStringLiteral("out") });

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr("--- red.dxf\n+++ red.dxf\n@@ -"));
    EXPECT_EQ(bytes(QStringLiteral("out/red.dxf")), repaired(redWalls()));
}

TEST_F(BatchFix, ACleanDrawingHasNoDiff)
{
    EXPECT_EQ(run({ QStringLiteral("fix"),
                    QStringLiteral("-s"),
                    QStringLiteral("std.dxf"),
                    QStringLiteral("--diff"),
                    QStringLiteral("clean.dxf") })
                  .output,
              "clean.dxf: no violations\n1 drawing checked: no violations\n");
}

TEST_F(BatchFix, ALineStyleThatTheDrawingLacksComesFromTheLineStyleFiles)
{
    CKvDrawingBuilder standards;
    // As in the file for metric drawings.
    standards.lineStyle("DASHED").dashes({ 12.7, -6.35 });
    standards.layer("WALLS").lineStyle("DASHED");
    save(QStringLiteral("std.dxf"), standards);
    CKvDrawingBuilder drawing;
    drawing.measurement(1).withReservedLineStyles();
    drawing.layer("WALLS");
    save(QStringLiteral("a.dxf"), drawing);

    const CKvBatchRun result = fix("a.dxf -o out");

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(layersOf("out/a.dxf"), "WALLS white DASHED -3\n");
}

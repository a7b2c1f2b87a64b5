// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace
{

class BatchCheck : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        save(QStringLiteral("std.dxf"), officeStandards());
        save(QStringLiteral("clean.dxf"), cleanDrawing());
        save(QStringLiteral("red.dxf"), redWalls());
    }
    /// Runs "check" with standards and JSON report.
    CKvBatchRun check(const QStringList &arguments) const
    {
        return run(QStringList { QStringLiteral("check"),
                                 QStringLiteral("-s"),
                                 QStringLiteral("std.dxf"),
                                 QStringLiteral("-f"),
                                 QStringLiteral("json") }
                   + arguments);
    }
    /// "path status" a line.
    static std::string statuses(const CKvBatchRun &run)
    {
        std::string lines;
        const auto report = json(run);
        for (const auto &drawing : report.at("drawings")) {
            lines += drawing.at("path").get<std::string>() + " "
                + drawing.at("status").get<std::string>() + "\n";
        }
        return lines;
    }
};

} // namespace

TEST_F(BatchCheck, ACleanDrawingEndsWith0)
{
    const CKvBatchRun result = check({ QStringLiteral("clean.dxf") });

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(violations(result), "");
    EXPECT_EQ(statuses(result), "clean.dxf checked\n");
    EXPECT_EQ(json(result).at("summary").dump(),
              R"({"drawings":1,"failed":0,"violations":0,"ignored":0})");
    EXPECT_EQ(result.errors, "");
}

TEST_F(BatchCheck, AnOpenViolationEndsWith1)
{
    const CKvBatchRun result = check({ QStringLiteral("clean.dxf"), QStringLiteral("red.dxf") });

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(statuses(result), "clean.dxf checked\nred.dxf checked\n");
    EXPECT_EQ(json(result).at("summary").dump(),
              R"({"drawings":2,"failed":0,"violations":1,"ignored":0})");
}

TEST_F(BatchCheck, ADrawingThatCannotBeReadEndsWith3AndTheOthersAreDone)
{
    write(QStringLiteral("broken.dxf"), "0\nSECTION\n2\nHEADER\nrubbish\n");

    const CKvBatchRun result = check(
        { QStringLiteral("gone.dxf"), QStringLiteral("broken.dxf"), QStringLiteral("red.dxf") });

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(statuses(result), "gone.dxf failed\nbroken.dxf failed\nred.dxf checked\n");
    EXPECT_EQ(json(result).at("drawings").at(0).at("error"), "gone.dxf: There is no such file.");
    EXPECT_THAT(json(result).at("drawings").at(1).at("error").get<std::string>(),
                StartsWith("broken.dxf:5: "));
    EXPECT_EQ(json(result).at("summary").dump(),
              R"({"drawings":3,"failed":2,"violations":1,"ignored":0})");
}

TEST_F(BatchCheck, ADrawingWithoutStandardsIsNotCheckedAndNotCountedAsFailed)
{
    const CKvBatchRun result = run({ QStringLiteral("check"),
                                     QStringLiteral("red.dxf"),
                                     QStringLiteral("gone.dxf"),
                                     QStringLiteral("-f"),
                                     QStringLiteral("json") });

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(statuses(result), "red.dxf no-standards\ngone.dxf failed\n");
    EXPECT_EQ(json(result).at("summary").dump(),
              R"({"drawings":2,"failed":1,"violations":0,"ignored":0})");
}

TEST_F(BatchCheck, ADamagedStampMakesTheDrawingFail)
{
    CKvDrawingBuilder drawing = redWalls();
    drawing.layer("FLUR").extensionDictionary().xrecord("AcStStandard").group(90, 1);
    save(QStringLiteral("damaged.dxf"), drawing);

    const CKvBatchRun result = check({ QStringLiteral("damaged.dxf"), QStringLiteral("red.dxf") });

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(statuses(result), "damaged.dxf failed\nred.dxf checked\n");
    const auto failed = firstDrawing(result);
    EXPECT_THAT(failed.at("error").get<std::string>(),
                StartsWith("damaged.dxf: An object of class "));
    EXPECT_TRUE(failed.at("violations").empty());
    EXPECT_TRUE(failed.at("standards").empty());
}

TEST_F(BatchCheck, AnIgnoredViolationIsNoOpenOne)
{
    CKvDrawingBuilder drawing;
    drawing.layer("WALLS").color(1).stamped(1, "anna");
    save(QStringLiteral("ignored.dxf"), drawing);

    const CKvBatchRun result = check({ QStringLiteral("ignored.dxf") });

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(violations(result), "layers.properties WALLS\n");
    EXPECT_EQ(firstDrawing(result).at("violations").at(0).at("ignored"), true);
    EXPECT_EQ(firstDrawing(result).at("violations").at(0).at("ignoredBy"), "anna");
    EXPECT_EQ(json(result).at("summary").dump(),
              R"({"drawings":1,"failed":0,"violations":0,"ignored":1})");
}

TEST_F(BatchCheck, IncludeIgnoredCountsIgnoredViolationsAsOpenToo)
{
    CKvDrawingBuilder drawing = redWalls();
    drawing.layer("FLUR").stamped(1, "anna");
    save(QStringLiteral("ignored.dxf"), drawing);

    const CKvBatchRun result =
        check({ QStringLiteral("ignored.dxf"), QStringLiteral("--include-ignored") });

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(json(result).at("summary").dump(),
              R"({"drawings":1,"failed":0,"violations":2,"ignored":1})");
}

TEST_F(BatchCheck, OnlyTheNamedCategoriesAreChecked)
{
    EXPECT_EQ(
        check({ QStringLiteral("red.dxf"), QStringLiteral("--only"), QStringLiteral("layers") })
            .status,
        1);
}

TEST_F(BatchCheck, AFolderStandsForItsDrawingsInTheOrderOfTheirNames)
{
    save(QStringLiteral("plans/b.dxf"), cleanDrawing());
    save(QStringLiteral("plans/a.dws"), cleanDrawing());
    save(QStringLiteral("plans/C.DXF"), cleanDrawing());
    save(QStringLiteral("plans/sub/a.dxf"), cleanDrawing());
    write(QStringLiteral("plans/a.dxf.bak"), "no drawing");
    write(QStringLiteral("plans/notes.txt"), "no drawing");

    const CKvBatchRun result = check({ QStringLiteral("plans"), QStringLiteral("clean.dxf") });

    EXPECT_EQ(statuses(result),
              "plans/C.DXF checked\nplans/a.dws checked\nplans/b.dxf checked\n"
              "plans/sub/a.dxf checked\nclean.dxf checked\n");
}

TEST_F(BatchCheck, FilesFromReadsOneDrawingALine)
{
    save(QStringLiteral("plans/b.dxf"), cleanDrawing());
    write(QStringLiteral("list.txt"), "\xEF\xBB\xBFred.dxf\r\n\nplans\nclean.dxf");

    const CKvBatchRun fromFile =
        check({ QStringLiteral("--files-from"), QStringLiteral("list.txt") });
    EXPECT_EQ(statuses(fromFile), "red.dxf checked\nplans/b.dxf checked\nclean.dxf checked\n");

    const CKvBatchRun fromInput = run({ QStringLiteral("check"),
                                        QStringLiteral("-s"),
                                        QStringLiteral("std.dxf"),
                                        QStringLiteral("-f"),
                                        QStringLiteral("json"),
                                        QStringLiteral("--files-from"),
                                        QStringLiteral("-") },
                                      "clean.dxf\nred.dxf\n");
    EXPECT_EQ(statuses(fromInput), "clean.dxf checked\nred.dxf checked\n");
}

TEST_F(BatchCheck, AListThatCannotBeReadEndsWith3AndTheOthersAreDone)
{
    const CKvBatchRun result = check({ QStringLiteral("clean.dxf"),
                                       QStringLiteral("--files-from"),
                                       QStringLiteral("gone.txt") });

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(statuses(result), "clean.dxf checked\n");
    EXPECT_THAT(result.errors, HasSubstr("The list gone.txt can't be read: "));
}

TEST_F(BatchCheck, AnEmptyListIsNoCleanRun)
{
    write(QStringLiteral("list.txt"), "\n\n");

    EXPECT_EQ(check({ QStringLiteral("--files-from"), QStringLiteral("list.txt") }).status, 3);
}

TEST_F(BatchCheck, TheReportGoesToAFileWhenOneIsNamed)
{
    const CKvBatchRun printed = check({ QStringLiteral("red.dxf") });
    const CKvBatchRun written =
        check({ QStringLiteral("red.dxf"), QStringLiteral("-o"), QStringLiteral("report.json") });

    EXPECT_EQ(written.status, 1);
    EXPECT_EQ(written.output, "");
    EXPECT_EQ(bytes(QStringLiteral("report.json")).toStdString(), printed.output);
}

TEST_F(BatchCheck, AReportThatCannotBeWrittenEndsWith3)
{
    const CKvBatchRun result = check({ QStringLiteral("clean.dxf"),
                                       QStringLiteral("-o"),
                                       QStringLiteral("no/folder/report.json") });

    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.errors, HasSubstr("no/folder/report.json: "));
}

TEST_F(BatchCheck, AReportNeverReplacesADrawingOrItsStandards)
{
    for (const char *name : { "red.dxf", "./red.dxf", "std.dxf" }) {
        const CKvBatchRun result =
            check({ QStringLiteral("red.dxf"), QStringLiteral("-o"), QString::fromUtf8(name) });
        EXPECT_EQ(result.status, 2) << name;
    }
    EXPECT_EQ(bytes(QStringLiteral("red.dxf")), redWalls().toBytes());
    EXPECT_EQ(bytes(QStringLiteral("std.dxf")), officeStandards().toBytes());
}

TEST_F(BatchCheck, ACheckChangesNoFile)
{
    check({ QStringLiteral("red.dxf") });

    EXPECT_EQ(files(), "clean.dxf red.dxf std.dxf");
    EXPECT_EQ(bytes(QStringLiteral("red.dxf")), redWalls().toBytes());
}

TEST_F(BatchCheck, CandidatesChoosesWhatTheReportCarries)
{
    const auto fixes = [this](const char *which) {
        std::string text;
        const auto run = check({ QStringLiteral("red.dxf"),
                                 QStringLiteral("--candidates"),
                                 QString::fromUtf8(which) });
        const auto violation = firstDrawing(run).at("violations").at(0);
        for (const auto &fix : violation.at("fixes")) {
            text += std::to_string(fix.at("index").get<int>()) + " "
                + fix.at("name").get<std::string>() + "\n";
        }
        return text + std::to_string(violation.at("candidates").get<int>()) + " "
            + std::to_string(violation.at("recommended").get<int>());
    };

    EXPECT_EQ(fixes("recommended"), "1 WALLS\n3 1");
    EXPECT_EQ(fixes("all"), "0 0\n1 WALLS\n2 DOORS\n3 1");
    EXPECT_EQ(fixes("none"), "3 1");
}

TEST_F(BatchCheck, NamesInAnyScriptAreFoundAndPrintedAlsoInACLocale)
{
    setEnvironment(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    setEnvironment(QStringLiteral("LANG"), QStringLiteral("C"));
    CKvDrawingBuilder drawing("AC1032");
    drawing.layer("壁レイヤー");
    drawing.layer("Стены");
    save(QStringLiteral("Zeichnung für 東京.dxf"), drawing);

    const CKvBatchRun result = check({ QStringLiteral("Zeichnung für 東京.dxf") });

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(statuses(result), "Zeichnung für 東京.dxf checked\n");
    EXPECT_EQ(violations(result), "layers.name 壁レイヤー\nlayers.name Стены\n");
}

TEST_F(BatchCheck, NamesOfAnOldCodePageAreReadByIt)
{
    CKvDrawingBuilder drawing("AC1015");
    drawing.header("DWGCODEPAGE", 3, "ANSI_1251");
    drawing.layer("@@@");
    QByteArray cyrillic = drawing.toBytes();
    cyrillic.replace("@@@", "\xD1\xF2\xE5\xED\xFB");
    write(QStringLiteral("old.dxf"), cyrillic);

    EXPECT_EQ(violations(check({ QStringLiteral("old.dxf") })), "layers.name Стены\n");
}

// SPDX-License-Identifier: MIT
#include "CKvStandardsRunTest.h"

#include <gmock/gmock.h>

using ::testing::StartsWith;

namespace
{

using BatchStandards = CKvStandardsRunTest;

} // namespace

TEST_F(BatchStandards, TheStoredListIsUsedWhenNoneIsGiven)
{
    saveStandards(QStringLiteral("std/blue.dxf"), 5);
    saveDrawing({ path(QStringLiteral("std/blue.dxf")) });

    const CKvBatchRun result = check({});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(standards(result), "read /std/blue.dxf\n");
    EXPECT_EQ(standardColor(result), "blue");
}

TEST_F(BatchStandards, TheCommandLineReplacesTheStoredList)
{
    saveStandards(QStringLiteral("std/blue.dxf"), 5);
    saveStandards(QStringLiteral("green.dxf"), 3);
    saveDrawing({ path(QStringLiteral("std/blue.dxf")) });

    const CKvBatchRun result = check({ QStringLiteral("-s"), QStringLiteral("green.dxf") });

    EXPECT_EQ(standards(result), "read /green.dxf\n");
    EXPECT_EQ(standardColor(result), "green");
    EXPECT_EQ(firstDrawing(result).at("standards").at(0).at("name"), "green.dxf");
    EXPECT_EQ(firstDrawing(result).at("violations").at(0).at("fixes").at(0).at("standardsFile"),
              firstDrawing(result).at("standards").at(0).at("path"));
}

TEST_F(BatchStandards, TheOrderOfGivenFilesCounts)
{
    saveStandards(QStringLiteral("blue.dxf"), 5);
    saveStandards(QStringLiteral("green.dxf"), 3);
    saveDrawing({});

    EXPECT_EQ(standardColor(check({ QStringLiteral("-s"),
                                    QStringLiteral("blue.dxf"),
                                    QStringLiteral("-s"),
                                    QStringLiteral("green.dxf") })),
              "blue");
    EXPECT_EQ(standardColor(check({ QStringLiteral("-s"),
                                    QStringLiteral("green.dxf"),
                                    QStringLiteral("-s"),
                                    QStringLiteral("blue.dxf") })),
              "green");
}

TEST_F(BatchStandards, AFileGivenTwiceCountsOnce)
{
    saveStandards(QStringLiteral("blue.dxf"), 5);
    saveDrawing({});

    const CKvBatchRun result = check({ QStringLiteral("-s"),
                                       QStringLiteral("blue.dxf"),
                                       QStringLiteral("-s"),
                                       QStringLiteral("plans/../blue.dxf") });

    EXPECT_EQ(standards(result), "read /blue.dxf\n");
    EXPECT_EQ(firstDrawing(result).at("violations").at(0).at("candidates"), 3);
}

TEST_F(BatchStandards, ADrawingWithoutAListIsNotChecked)
{
    saveDrawing({});

    const CKvBatchRun result = check({});

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(firstDrawing(result).at("status"), "no-standards");
    EXPECT_EQ(firstDrawing(result).at("error"), "");
    EXPECT_EQ(standards(result), "");
}

TEST_F(BatchStandards, ADrawingOfR12WithoutAListIsNotChecked)
{
    save(QStringLiteral("plans/a.dxf"), CKvDrawingBuilder("AC1009"));

    EXPECT_EQ(firstDrawing(check({})).at("status"), "no-standards");
}

TEST_F(BatchStandards, ADrawingWhoseFilesAreAllGoneIsNotChecked)
{
    saveDrawing({ QStringLiteral("C:\\std\\gone.dws") });

    const CKvBatchRun stored = check({});
    EXPECT_EQ(stored.status, 3);
    EXPECT_EQ(firstDrawing(stored).at("status"), "no-standards");
    EXPECT_EQ(standards(stored), "not-found C:\\std\\gone.dws\n");

    const CKvBatchRun given = check({ QStringLiteral("-s"), QStringLiteral("gone.dxf") });
    EXPECT_EQ(given.status, 3);
    EXPECT_EQ(firstDrawing(given).at("status"), "no-standards");
    EXPECT_EQ(standards(given), "not-found /gone.dxf\n");
}

TEST_F(BatchStandards, AMissingFileEndsWith3AndTheOthersAreUsed)
{
    saveStandards(QStringLiteral("blue.dxf"), 5);
    saveDrawing({ QStringLiteral("/no/gone.dws"), path(QStringLiteral("blue.dxf")) });

    const CKvBatchRun result = check({});

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(firstDrawing(result).at("status"), "checked");
    EXPECT_EQ(standards(result), "read /blue.dxf\nnot-found /no/gone.dws\n");
    EXPECT_EQ(violations(result), "layers.properties WALLS\n");
}

TEST_F(BatchStandards, AGivenFileIsNotSearchedElsewhere)
{
    saveStandards(QStringLiteral("plans/blue.dxf"), 5);
    saveDrawing({});

    EXPECT_EQ(standards(check({ QStringLiteral("-s"),
                                QStringLiteral("blue.dxf"),
                                QStringLiteral("--search-path"),
                                QStringLiteral("plans") })),
              "not-found /blue.dxf\n");
}

TEST_F(BatchStandards, ADamagedFileEndsWith3WithLineAndReason)
{
    saveStandards(QStringLiteral("blue.dxf"), 5);
    write(QStringLiteral("broken.dxf"), "0\nSECTION\nrubbish\n");
    saveDrawing({});

    const CKvBatchRun result = check({ QStringLiteral("-s"),
                                       QStringLiteral("broken.dxf"),
                                       QStringLiteral("-s"),
                                       QStringLiteral("blue.dxf") });

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(standards(result), "failed /broken.dxf\nread /blue.dxf\n");
    EXPECT_THAT(firstDrawing(result).at("standards").at(0).at("error").get<std::string>(),
                StartsWith(fullPath(QStringLiteral("broken.dxf:3: "))));
    EXPECT_EQ(violations(result), "layers.properties WALLS\n");
}

TEST_F(BatchStandards, OnlyUnreadableFilesIsCheckedWithoutViolationsAnd3)
{
    write(QStringLiteral("broken.dxf"), "rubbish\n");
    saveDrawing({});

    const CKvBatchRun result = check({ QStringLiteral("-s"), QStringLiteral("broken.dxf") });

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(firstDrawing(result).at("status"), "checked");
    EXPECT_EQ(violations(result), "");
}

TEST_F(BatchStandards, AFileWithoutARecordToCheckAgainstIsEmptyAnd3)
{
    save(QStringLiteral("empty.dxf"), CKvDrawingBuilder());
    CKvDrawingBuilder external;
    external.layer("XREF|WALLS").flags(16);
    save(QStringLiteral("external.dxf"), external);
    saveDrawing({});

    const CKvBatchRun result = check({ QStringLiteral("-s"),
                                       QStringLiteral("empty.dxf"),
                                       QStringLiteral("-s"),
                                       QStringLiteral("external.dxf") });

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(standards(result), "empty /empty.dxf\nempty /external.dxf\n");
    EXPECT_EQ(firstDrawing(result).at("status"), "checked");
}

TEST_F(BatchStandards, AFileThatIsGoneIsSearchedBesideTheDrawingThenOnTheSearchPaths)
{
    saveStandards(QStringLiteral("one/std.dws"), 5);
    saveStandards(QStringLiteral("two/std.dws"), 3);
    saveDrawing({ QStringLiteral("C:\\std\\std.dws") });
    const QStringList searched = { QStringLiteral("--search-path"),
                                   QStringLiteral("two"),
                                   QStringLiteral("--search-path"),
                                   QStringLiteral("one") };

    EXPECT_EQ(standards(check(searched)), "read /two/std.dws\n");
    saveStandards(QStringLiteral("plans/std.dws"), 6);
    EXPECT_EQ(standards(check(searched)), "read /plans/std.dws\n");
}

TEST_F(BatchStandards, ARelativeStoredPathCountsFromTheWorkingDirectoryFirst)
{
    saveStandards(QStringLiteral("std.dws"), 5);
    saveStandards(QStringLiteral("plans/std.dws"), 3);
    saveDrawing({ QStringLiteral("std.dws") });

    EXPECT_EQ(standards(check({})), "read /std.dws\n");
}

TEST_F(BatchStandards, AListedPathCountsOncePerSpelling)
{
    saveStandards(QStringLiteral("blue.dxf"), 5);
    saveDrawing({ path(QStringLiteral("blue.dxf")),
                  path(QStringLiteral("blue.dxf")),
                  path(QStringLiteral("./blue.dxf")) });

    const CKvBatchRun result = check({});

    EXPECT_EQ(standards(result), "read /blue.dxf\nread /blue.dxf\n");
    EXPECT_EQ(firstDrawing(result).at("violations").at(0).at("candidates"), 6);
}

TEST_F(BatchStandards, ADamagedListMakesTheDrawingFail)
{
    CKvDrawingBuilder drawing = redWalls();
    drawing.namedObjects().xrecord("AcStStandard").group(1, "/std/a.dws");
    save(QStringLiteral("plans/a.dxf"), drawing);

    const CKvBatchRun result = check({});

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(firstDrawing(result).at("status"), "failed");
}

TEST_F(BatchStandards, OtherDrawingsOfTheRunHaveTheirOwnStandards)
{
    saveStandards(QStringLiteral("blue.dxf"), 5);
    saveStandards(QStringLiteral("red.dxf"), 1);
    saveDrawing({ path(QStringLiteral("blue.dxf")) });
    CKvDrawingBuilder other = redWalls();
    other.standardsFiles({ path(QStringLiteral("red.dxf")) });
    save(QStringLiteral("plans/b.dxf"), other);

    for (const char *jobs : { "1", "2" }) {
        const CKvBatchRun result =
            check({ QStringLiteral("plans/b.dxf"), QStringLiteral("-j"), QString::fromUtf8(jobs) });
        EXPECT_EQ(json(result).at("drawings").at(0).at("violations").size(), 1U);
        EXPECT_EQ(json(result).at("drawings").at(1).at("violations").size(), 0U);
    }
}

// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include <gmock/gmock.h>

using ::testing::HasSubstr;

namespace
{

class BatchWorkers : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        save(QStringLiteral("std.dxf"), officeStandards());
        for (int i = 0; i < 12; ++i) {
            CKvDrawingBuilder drawing = redWalls();
            for (int extra = 0; extra < i; ++extra) {
                drawing.layer(QStringLiteral("EXTRA%1").arg(extra));
            }
            save(QStringLiteral("plans/%1.dxf").arg(i, 2, 10, QLatin1Char('0')), drawing);
        }
    }
    CKvBatchRun start(const char *arguments) const
    {
        return run(QString::fromUtf8(arguments).split(QLatin1Char(' ')));
    }
};

} // namespace

TEST_F(BatchWorkers, TheReportIsTheSameHoweverManyThereAre)
{
    const CKvBatchRun alone = start("check plans -s std.dxf -f json -j 1");

    EXPECT_EQ(alone.status, 1);
    EXPECT_EQ(json(alone).at("drawings").size(), 12U);
    for (const char *jobs : { "0", "2", "5", "100" }) {
        const CKvBatchRun spread =
            start(("check plans -s std.dxf -f json -j " + std::string(jobs)).c_str());
        EXPECT_EQ(spread.output, alone.output) << jobs;
        EXPECT_EQ(spread.status, alone.status) << jobs;
        EXPECT_EQ(spread.errors, "") << jobs;
    }
}

TEST_F(BatchWorkers, TextComesInTheOrderOfTheDrawings)
{
    EXPECT_EQ(start("check plans -s std.dxf -j 4").output,
              start("check plans -s std.dxf -j 1").output);
}

TEST_F(BatchWorkers, JsonLinesComeAsTheyAreDoneAndEachDrawingOnce)
{
    const auto sortedLines = [](const CKvBatchRun &run) {
        QStringList lines = QString::fromStdString(run.output).split(QLatin1Char('\n'));
        lines.sort();
        return lines;
    };

    EXPECT_EQ(sortedLines(start("check plans -s std.dxf -f jsonl -j 4")),
              sortedLines(start("check plans -s std.dxf -f jsonl -j 1")));
}

TEST_F(BatchWorkers, RepairsAreTheSameToo)
{
    start("fix plans -s std.dxf -o one -j 1");
    const CKvBatchRun spread = start("fix plans -s std.dxf -o many -j 4 -f json");

    EXPECT_EQ(json(spread).at("drawings").size(), 12U);
    EXPECT_EQ(files(QStringLiteral("one")), files(QStringLiteral("many")));
    for (int i = 0; i < 12; ++i) {
        const QString name = QStringLiteral("/%1.dxf").arg(i, 2, 10, QLatin1Char('0'));
        EXPECT_EQ(bytes(QStringLiteral("one") + name), bytes(QStringLiteral("many") + name));
    }
}

TEST_F(BatchWorkers, ADiffComesThroughInTheEncodingOfTheDrawing)
{
    CKvDrawingBuilder drawing = redWalls();
    drawing.header("DWGCODEPAGE", 3, "ANSI_1251");
    drawing.layer("@@@").color(6).lineWeight(50);
    QByteArray cyrillic = drawing.toBytes();
    cyrillic.replace("@@@", "\xD1\xF2");
    write(QStringLiteral("old.dxf"), cyrillic);
    write(QStringLiteral("map.csv"), "category,name,target\nlayers,Ст,DOORS\n");

    const CKvBatchRun alone = start("fix old.dxf -s std.dxf --diff --map map.csv");
    const CKvBatchRun spread = start("fix old.dxf -s std.dxf --diff --map map.csv --timeout 60");

    EXPECT_THAT(alone.output, HasSubstr("-\xD1\xF2\n"));
    EXPECT_EQ(spread.output, alone.output);
}

TEST_F(BatchWorkers, FailuresComeThrough)
{
    write(QStringLiteral("broken.dxf"), "rubbish\n");

    const CKvBatchRun alone = start("check broken.dxf plans -s std.dxf -f json -j 1");
    const CKvBatchRun spread = start("check broken.dxf plans -s std.dxf -f json -j 3");

    EXPECT_EQ(alone.status, 3);
    EXPECT_EQ(spread.status, 3);
    EXPECT_EQ(spread.output, alone.output);
}

TEST_F(BatchWorkers, ADrawingThatTakesTooLongFailsAndTheOthersGoOn)
{
    const CKvBatchRun result = start("check plans -s std.dxf -f json --timeout 0.00001 -j 2");

    EXPECT_EQ(result.status, 3);
    ASSERT_EQ(json(result).at("drawings").size(), 12U);
    EXPECT_EQ(json(result).at("summary").at("failed"), 12);
    EXPECT_EQ(firstDrawing(result).at("error"), "plans/00.dxf: It took longer than 1e-05 seconds.");
}

TEST_F(BatchWorkers, ADrawingInTimeIsNoneTheWorse)
{
    const CKvBatchRun unlimited = start("check plans/00.dxf -s std.dxf -f json");

    for (const char *seconds : { "60", "2147483" }) {
        const std::string arguments = "check plans/00.dxf -s std.dxf -f json --timeout ";
        EXPECT_EQ(start((arguments + seconds).c_str()).output, unlimited.output) << seconds;
    }
}

// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include <gmock/gmock.h>

#include <QFile>

using ::testing::HasSubstr;

namespace
{

using Output = CKvRunObstacles::Output;

/// What can't be written makes the run end with 3 and says why.
class BatchOutputFailure : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        save(QStringLiteral("std.dxf"), officeStandards());
        CKvDrawingBuilder drawing = redWalls();
        drawing.standardsFiles({ path(QStringLiteral("std.dxf")) });
        save(QStringLiteral("red.dxf"), drawing);
    }
    CKvBatchRun start(const char *arguments) const
    {
        return run(QString::fromUtf8(arguments).split(QLatin1Char(' ')));
    }
    void hinder(Output output)
    {
        CKvRunObstacles obstacles;
        obstacles.output = output;
        setObstacles(obstacles);
    }
    /// Files end at this size, as on a full disk.
    void hinder(long long largestFile)
    {
        CKvRunObstacles obstacles;
        obstacles.largestFile = largestFile;
        setObstacles(obstacles);
    }
};

constexpr const char *kPrintingRuns[] = { "--help",
                                          "--version",
                                          "check --help",
                                          "show red.dxf",
                                          "show red.dxf -f json",
                                          "files red.dxf",
                                          "files red.dxf -f json",
                                          "ignore red.dxf layers WALLS",
                                          "check red.dxf",
                                          "check red.dxf -f json",
                                          "check red.dxf red.dxf -f jsonl -j 2",
                                          "fix red.dxf --diff" };

} // namespace

TEST_F(BatchOutputFailure, ADiskThatIsFullUnderStandardOutputEndsWith3)
{
    hinder(Output::FullDisk);

    for (const char *arguments : kPrintingRuns) {
        const CKvBatchRun result = start(arguments);
        EXPECT_EQ(result.status, 3) << arguments;
        EXPECT_EQ(result.errors, "Standard output can't be written: No space left on device.\n")
            << arguments;
    }
}

TEST_F(BatchOutputFailure, AReaderThatIsGoneEndsWith3)
{
    hinder(Output::ReaderGone);

    for (const char *arguments : kPrintingRuns) {
        const CKvBatchRun result = start(arguments);
        EXPECT_EQ(result.status, 3) << arguments;
        EXPECT_EQ(result.errors, "Standard output can't be written: Broken pipe.\n") << arguments;
    }
}

TEST_F(BatchOutputFailure, ADiskThatFillsUpUnderARepairIsNamedAndTheDrawingStays)
{
    const QByteArray before = bytes(QStringLiteral("red.dxf"));
    hinder(before.size() / 2);

    const CKvBatchRun result = start("fix red.dxf --in-place --no-backup -f json");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(firstDrawing(result).at("status"), "failed");
    EXPECT_EQ(firstDrawing(result).at("error"),
              "red.dxf: The file can't be written: File too large.");
    EXPECT_EQ(bytes(QStringLiteral("red.dxf")), before);
    EXPECT_EQ(files(), "red.dxf std.dxf");
}

TEST_F(BatchOutputFailure, ADiskThatFillsUpUnderTheCopyIsNamedAndTheDrawingStays)
{
    const QByteArray before = bytes(QStringLiteral("red.dxf"));
    hinder(before.size() / 2);

    const CKvBatchRun result = start("fix red.dxf --in-place -f json");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(firstDrawing(result).at("error"),
              "red.dxf.bak: The file can't be written: File too large.");
    EXPECT_EQ(bytes(QStringLiteral("red.dxf")), before);
    EXPECT_EQ(files(), "red.dxf std.dxf");
}

TEST_F(BatchOutputFailure, ADiskThatFillsUpUnderALargeDrawingIsNamed)
{
    CKvDrawingBuilder drawing = redWalls();
    for (int i = 0; i < 2000; ++i) {
        drawing.layer(QStringLiteral("EXTRA%1").arg(i));
    }
    save(QStringLiteral("large.dxf"), drawing);
    hinder(100000);

    const CKvBatchRun result = start("fix large.dxf -s std.dxf -o out");

    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.output,
                HasSubstr("out/large.dxf: The file can't be written: File too large.\n"));
    EXPECT_EQ(files(QStringLiteral("out")), "");
}

TEST_F(BatchOutputFailure, ADiskThatFillsUpUnderAReportIsNamedAndTheOldReportStays)
{
    write(QStringLiteral("report"), "old");
    hinder(50);

    for (const char *format : { "text", "json", "sarif", "junit", "html", "csv" }) {
        const CKvBatchRun result =
            start(("check red.dxf -o report -f " + std::string(format)).c_str());
        EXPECT_EQ(result.status, 3) << format;
        EXPECT_EQ(result.errors, "report: File too large.\n") << format;
        EXPECT_EQ(bytes(QStringLiteral("report")), "old") << format;
    }
    EXPECT_EQ(start("check red.dxf -o report -f jsonl").errors, "report: File too large.\n");
}

TEST_F(BatchOutputFailure, ADiskThatFillsUpUnderAStampIsNamedAndTheDrawingStays)
{
    const QByteArray before = bytes(QStringLiteral("red.dxf"));
    hinder(before.size() / 2);

    const CKvBatchRun result = start("ignore red.dxf layers WALLS");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.errors, "red.dxf: The file can't be written: File too large.\n");
    EXPECT_EQ(bytes(QStringLiteral("red.dxf")), before);
}

TEST_F(BatchOutputFailure, ACopyHasThePermissionsOfTheDrawing)
{
    constexpr QFileDevice::Permissions kPrivate = QFileDevice::ReadOwner | QFileDevice::WriteOwner
        | QFileDevice::ReadUser | QFileDevice::WriteUser;
    setPermissions(QStringLiteral("red.dxf"), kPrivate);

    const CKvBatchRun result = start("fix red.dxf --in-place");

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(QFile::permissions(path(QStringLiteral("red.dxf.bak"))), kPrivate);
    EXPECT_EQ(QFile::permissions(path(QStringLiteral("red.dxf"))), kPrivate);
}

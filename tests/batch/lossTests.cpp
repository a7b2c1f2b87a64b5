// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include <gmock/gmock.h>

using ::testing::HasSubstr;

namespace
{

/// No run may write over what it reads, or over anybody's standards.
class BatchLoss : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        save(QStringLiteral("std.dxf"), officeStandards());
        save(QStringLiteral("other.std"), officeStandards());
        CKvDrawingBuilder drawing = redWalls();
        drawing.standardsFiles({ path(QStringLiteral("other.std")) });
        save(QStringLiteral("red.dxf"), drawing);
    }
    CKvBatchRun start(const char *arguments) const
    {
        return run(QString::fromUtf8(arguments).split(QLatin1Char(' ')));
    }
    /// Expects wrong usage and the file as it was.
    void expectRefused(const char *arguments, const char *file, const char *text) const
    {
        const QString name = QString::fromUtf8(file);
        const QByteArray before = bytes(name);
        const CKvBatchRun result = start(arguments);
        EXPECT_EQ(result.status, 2) << arguments;
        EXPECT_THAT(result.errors, HasSubstr(text)) << arguments;
        EXPECT_EQ(bytes(name), before) << arguments;
    }
};

} // namespace

TEST_F(BatchLoss, AReportReplacesNothingThatTheRunReads)
{
    write(QStringLiteral("list.txt"), "red.dxf\n");
    write(QStringLiteral("preferred"), "not even a drawing");

    expectRefused("check red.dxf -o red.dxf", "red.dxf", "which is one of the files");
    expectRefused("check red.dxf -s std.dxf -o std.dxf", "std.dxf", "which is one of the files");
    expectRefused(
        "check --files-from list.txt -o ./list.txt", "list.txt", "which is one of the files");
    expectRefused("check red.dxf --preferred preferred -o preferred",
                  "preferred",
                  "which is one of the files");
}

TEST_F(BatchLoss, AReportReplacesNoStoredStandardsFile)
{
    for (const char *format : { "text", "json", "jsonl" }) {
        expectRefused(("check red.dxf -o other.std -f " + std::string(format)).c_str(),
                      "other.std",
                      "The report would replace other.std, which is a drawing.\n");
    }
}

TEST_F(BatchLoss, AReportReplacesNoDrawingAtAll)
{
    const QByteArray ascii = redWalls().toBytes();
    write(QStringLiteral("damaged.dxf"), "rubbish");
    write(QStringLiteral("damaged.DWS"), "rubbish");
    write(QStringLiteral("marked"), "\xEF\xBB\xBF" + ascii);
    write(QStringLiteral("commented"), "999\nby hand\n" + ascii);
    write(QStringLiteral("returns"), QByteArray(ascii).replace("\n", "\r\n"));
    write(QStringLiteral("binary"), QByteArray("AutoCAD Binary DXF\r\n\x1a\0\0\0", 24));

    for (const char *name :
         { "damaged.dxf", "damaged.DWS", "marked", "commented", "returns", "binary" }) {
        expectRefused(("check red.dxf -o " + std::string(name)).c_str(), name, "is a drawing.");
    }
}

TEST_F(BatchLoss, AReportReplacesAnOlderReport)
{
    for (const char *format : { "text", "json", "jsonl", "sarif", "junit", "html", "csv" }) {
        const std::string arguments = "check red.dxf -s std.dxf -o report -f ";
        EXPECT_EQ(start((arguments + format).c_str()).status, 1) << format;
        EXPECT_EQ(start((arguments + format).c_str()).status, 1) << format;
    }
    write(QStringLiteral("report"), "");
    EXPECT_EQ(start("check red.dxf -s std.dxf -o report").status, 1);
}

TEST_F(BatchLoss, ARepairReplacesNothingThatTheRunReads)
{
    write(QStringLiteral("out/red.dxf"), "category,name,target\n");
    write(QStringLiteral("list/red.dxf"), "red.dxf\n");

    expectRefused("fix red.dxf -s std.dxf -o out --map out/red.dxf", "out/red.dxf", "is one of");
    expectRefused("fix --files-from list/red.dxf -s std.dxf -o list", "list/red.dxf", "is one of");
    expectRefused(
        "fix red.dxf -s std.dxf -o out --preferred out/red.dxf", "out/red.dxf", "is one of");
}

TEST_F(BatchLoss, ARepairReplacesNoStoredStandardsFileOfAnotherDrawing)
{
    save(QStringLiteral("out/red.dxf"), officeStandards());
    CKvDrawingBuilder other = redWalls();
    other.standardsFiles({ path(QStringLiteral("out/red.dxf")) });
    save(QStringLiteral("plan.dxf"), other);

    expectRefused("fix red.dxf plan.dxf -o out",
                  "out/red.dxf",
                  "The output out/red.dxf would replace a standards file of plan.dxf.\n");
    expectRefused("fix red.dxf plan.dxf -s std.dxf -o out", "out/red.dxf", "a standards file of");
    EXPECT_FALSE(exists(QStringLiteral("out/plan.dxf")));
}

TEST_F(BatchLoss, ARepairReplacesNoStandardsFileThatTheSearchFinds)
{
    save(QStringLiteral("out/red.dxf"), officeStandards());
    CKvDrawingBuilder other = redWalls();
    other.standardsFiles({ QStringLiteral("C:\\std\\red.dxf") });
    save(QStringLiteral("plans/plan.dxf"), other);

    expectRefused("fix red.dxf plans -o out --search-path out",
                  "out/red.dxf",
                  "The output out/red.dxf would replace a standards file of plans/plan.dxf.\n");
}

TEST_F(BatchLoss, ARepairReplacesAnOlderRepair)
{
    EXPECT_EQ(start("fix red.dxf -o out").status, 0);
    EXPECT_EQ(start("fix red.dxf -o out").status, 0);
}

TEST_F(BatchLoss, ACopyReplacesNothingThatTheRunReads)
{
    save(QStringLiteral("red.dxf.bak"), officeStandards());

    expectRefused("fix red.dxf -s red.dxf.bak --in-place",
                  "red.dxf.bak",
                  "The copy of red.dxf would replace red.dxf.bak, which is one of the files that "
                  "are read.\n");
    EXPECT_EQ(start("fix red.dxf -s red.dxf.bak --in-place --no-backup").status, 0);
}

TEST_F(BatchLoss, ADwgFileIsRepairedIntoADxfFileAndNeverReplaced)
{
    const QByteArray dwg = "AC1015 and what only other programs can read";
    write(QStringLiteral("plans/plan.DWG"), dwg);
    write(QStringLiteral("plans/plan.DWG.bak"), "an older copy");
    // Stands for the program that reads such files: copies a drawing to the file behind -o.
    write(QStringLiteral("bin/dwg2dxf"), "#!/bin/sh\ncp red.dxf \"$3\"\n");
    setPermissions(QStringLiteral("bin/dwg2dxf"),
                   QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    setEnvironment(QStringLiteral("PATH"),
                   path(QStringLiteral("bin")) + QStringLiteral(":/usr/bin:/bin"));

    const CKvBatchRun moved = start("fix plans/plan.DWG -s std.dxf -o out -f json");
    const CKvBatchRun inPlace = start("fix plans/plan.DWG -s std.dxf --in-place");

    EXPECT_EQ(moved.status, 0) << ::testing::PrintToString(moved);
    EXPECT_EQ(firstDrawing(moved).at("output"), "out/plan.dxf");
    EXPECT_EQ(files(QStringLiteral("out")), "plan.dxf");
    EXPECT_EQ(start("check out/plan.dxf -s std.dxf").status, 0);
    EXPECT_EQ(inPlace.status, 3);
    EXPECT_THAT(inPlace.output, HasSubstr("plan.DWG: A DWG file can't be written."));
    EXPECT_EQ(bytes(QStringLiteral("plans/plan.DWG")), dwg);
    EXPECT_EQ(bytes(QStringLiteral("plans/plan.DWG.bak")), "an older copy");
}

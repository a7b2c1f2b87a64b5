// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>

using ::testing::HasSubstr;

namespace
{

constexpr QFileDevice::Permissions kNone;
constexpr QFileDevice::Permissions kOwner =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
constexpr QFileDevice::Permissions kEverybody = kOwner | QFileDevice::ReadGroup
    | QFileDevice::ExeGroup | QFileDevice::ReadOther | QFileDevice::ExeOther;

/// Whether somebody without rights of their own can start a program.
bool canEverybodyReach(const std::filesystem::path &program)
{
    constexpr auto kExecute = std::filesystem::perms::others_exec;
    for (std::filesystem::path at = program; at != at.parent_path(); at = at.parent_path()) {
        if ((std::filesystem::status(at).permissions() & kExecute) != kExecute) {
            return false;
        }
    }
    return true;
}

/// What becomes of the entries of a folder that are more, or less, than drawings.
class BatchInputs : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        save(QStringLiteral("std.dxf"), officeStandards());
        save(QStringLiteral("plans/a.dxf"), cleanDrawing());
    }
    CKvBatchRun start(const char *arguments) const
    {
        return run(QString::fromUtf8(arguments).split(QLatin1Char(' ')));
    }
    void makeFolder(const char *name) const
    {
        ASSERT_TRUE(QDir().mkpath(path(QString::fromUtf8(name))));
    }
    void makeLink(const char *name, const char *target) const
    {
        ASSERT_TRUE(QFile::link(QString::fromUtf8(target), path(QString::fromUtf8(name))));
    }
    /// "path status error" a line.
    static std::string outcomes(const CKvBatchRun &run)
    {
        std::string lines;
        const auto report = json(run);
        for (const auto &drawing : report.at("drawings")) {
            const std::string error = drawing.at("error").get<std::string>();
            lines += drawing.at("path").get<std::string>() + " "
                + drawing.at("status").get<std::string>() + (error.empty() ? "" : " " + error)
                + "\n";
        }
        return lines;
    }
};

} // namespace

TEST_F(BatchInputs, AFolderBelowThatCannotBeReadEndsWith3AndTheOthersAreDone)
{
    if (geteuid() == 0 && !canEverybodyReach(KV_BATCH_PROGRAM)) {
        GTEST_SKIP() << "root can read every folder, and nobody else can start the program here";
    }
    save(QStringLiteral("plans/secret/b.dxf"), redWalls());
    setPermissions(QString(), kEverybody);
    setPermissions(QStringLiteral("plans/secret"), kNone);
    CKvRunObstacles obstacles;
    obstacles.isUnprivileged = true;
    setObstacles(obstacles);

    const CKvBatchRun below = start("check plans -s std.dxf -f json");
    const CKvBatchRun named = start("check plans/secret plans/a.dxf -s std.dxf -f json");

    setPermissions(QStringLiteral("plans/secret"), kOwner);
    EXPECT_EQ(below.status, 3);
    EXPECT_EQ(outcomes(below), "plans/a.dxf checked\n");
    EXPECT_EQ(below.errors, "The folder plans/secret can't be read: Permission denied.\n");
    EXPECT_EQ(named.status, 3);
    EXPECT_EQ(outcomes(named), "plans/a.dxf checked\n");
    EXPECT_EQ(named.errors, below.errors);
}

TEST_F(BatchInputs, AFolderWithoutADrawingBesideAGoodDrawingIsNoCleanRun)
{
    makeFolder("empty/below");

    const CKvBatchRun result = start("check plans empty -s std.dxf -f json");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(outcomes(result), "plans/a.dxf checked\n");
    EXPECT_EQ(result.errors, "There is no drawing in the folder empty.\n");
}

TEST_F(BatchInputs, ALinkThatLeadsNowhereIsADrawingThatFails)
{
    makeLink("plans/b.dxf", "gone.dxf");
    makeLink("plans/notes.txt", "gone.txt");

    const CKvBatchRun result = start("check plans -s std.dxf -f json");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(outcomes(result),
              "plans/a.dxf checked\nplans/b.dxf failed plans/b.dxf: There is no such file.\n");
}

TEST_F(BatchInputs, APipeIsADrawingThatFailsAndNobodyWaitsForIt)
{
    ASSERT_EQ(mkfifo(fullPath(QStringLiteral("plans/b.dxf")).c_str(), 0600), 0);

    const CKvBatchRun result = start("check plans -s std.dxf -f json");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(outcomes(result),
              "plans/a.dxf checked\nplans/b.dxf failed plans/b.dxf: This is a device or a pipe, "
              "not an ordinary file.\n");
}

TEST_F(BatchInputs, APipeAsStandardsFileIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo(fullPath(QStringLiteral("pipe.dxf")).c_str(), 0600), 0);

    EXPECT_EQ(start("check plans -s pipe.dxf").status, 3);
}

TEST_F(BatchInputs, ANameThatIsNotInUtf8IsToldWhereItMayBeADrawing)
{
    const std::string folder = fullPath(QStringLiteral("plans/"));
    ASSERT_EQ(mkdir((folder + "gr\xF6n").c_str(), 0700), 0);
    for (const char *name : { "gr\xFC\xDF.dxf", "gr\xFC\xDF.txt" }) {
        std::FILE *file = std::fopen((folder + name).c_str(), "w");
        ASSERT_NE(file, nullptr);
        std::fclose(file);
    }

    const CKvBatchRun result = start("check plans -s std.dxf -f json");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(outcomes(result), "plans/a.dxf checked\n");
    EXPECT_THAT(result.errors,
                HasSubstr("plans/gr\xEF\xBF\xBD\xEF\xBF\xBD.dxf can't be opened: its name is not "
                          "in UTF-8.\n"));
    EXPECT_THAT(result.errors,
                HasSubstr("plans/gr\xEF\xBF\xBDn can't be opened: its name is not in UTF-8.\n"));
    EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 2);
    // The temporary folder can't remove what it can't name.
    std::filesystem::remove_all(folder);
}

TEST_F(BatchInputs, ALinkToAFolderIsToldAndNotFollowed)
{
    makeLink("plans/again", ".");

    const CKvBatchRun result = start("check plans -s std.dxf -f json");

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(outcomes(result), "plans/a.dxf checked\n");
    EXPECT_EQ(result.errors, "plans/again is a link to a folder and was not followed.\n");
    EXPECT_EQ(start("check plans -s std.dxf -q").errors, "");
}

TEST_F(BatchInputs, ANamedLinkToAFolderIsFollowed)
{
    makeLink("link", "plans");

    EXPECT_EQ(outcomes(start("check link -s std.dxf -f json")), "link/a.dxf checked\n");
}

TEST_F(BatchInputs, HiddenFilesAndFoldersAreNoDrawings)
{
    write(QStringLiteral("plans/.~lock.a.dxf"), "rubbish");
    write(QStringLiteral("plans/.git/b.dxf"), "rubbish");

    const CKvBatchRun result = start("check plans -s std.dxf -f json");

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(outcomes(result), "plans/a.dxf checked\n");
    EXPECT_EQ(result.errors, "");
}

TEST_F(BatchInputs, ASecondRepairIntoAFolderBelowPassesItOver)
{
    save(QStringLiteral("plans/b.dxf"), redWalls());
    EXPECT_EQ(start("fix plans -s std.dxf -o plans/out").status, 0);
    const std::string once = files(QStringLiteral("plans"));

    const CKvBatchRun again = start("fix plans -s std.dxf -o plans/out -f json");

    EXPECT_EQ(again.status, 0);
    EXPECT_EQ(outcomes(again), "plans/a.dxf checked\nplans/b.dxf checked\n");
    EXPECT_EQ(again.errors, "plans/out was passed over: the repaired drawings go there.\n");
    EXPECT_EQ(files(QStringLiteral("plans")), once);
    EXPECT_EQ(once, "a.dxf b.dxf out/a.dxf out/b.dxf");
}

TEST_F(BatchInputs, TheFolderItselfAsOutputStaysWrongUsage)
{
    EXPECT_EQ(start("fix plans -s std.dxf -o plans").status, 2);
}

// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include <gmock/gmock.h>

using ::testing::HasSubstr;

namespace
{

class BatchFiles : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        save(QStringLiteral("a.dxf"), redWalls());
        save(QStringLiteral("std/office.dxf"), officeStandards());
        save(QStringLiteral("std/more.dxf"), officeStandards());
    }
    CKvBatchRun filesOf(const QStringList &arguments) const
    {
        return run(QStringList { QStringLiteral("files"), QStringLiteral("a.dxf") } + arguments);
    }
    std::string line(const char *name) const { return fullPath(QString::fromUtf8(name)) + "\n"; }
};

} // namespace

TEST_F(BatchFiles, ADrawingWithoutAListListsNothing)
{
    const CKvBatchRun result = filesOf({});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.errors, "");
    EXPECT_EQ(bytes(QStringLiteral("a.dxf")), redWalls().toBytes());
}

TEST_F(BatchFiles, AddedFilesStandInTheDrawingWithTheirFullPathAndAreChecked)
{
    const CKvBatchRun result = filesOf({ QStringLiteral("--add"),
                                         QStringLiteral("std/office.dxf"),
                                         QStringLiteral("--add"),
                                         QStringLiteral("std/more.dxf") });

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, line("std/office.dxf") + line("std/more.dxf"));
    EXPECT_EQ(filesOf({}).output, result.output);
    EXPECT_EQ(run({ QStringLiteral("check"), QStringLiteral("a.dxf") }).status, 1);
}

TEST_F(BatchFiles, AFileThatIsListedIsNotAddedAgain)
{
    filesOf({ QStringLiteral("--add"), QStringLiteral("std/office.dxf") });
    const QByteArray once = bytes(QStringLiteral("a.dxf"));

    const CKvBatchRun result =
        filesOf({ QStringLiteral("--add"), QStringLiteral("./std/office.dxf") });

    EXPECT_EQ(result.output, line("std/office.dxf"));
    EXPECT_EQ(bytes(QStringLiteral("a.dxf")), once);
}

TEST_F(BatchFiles, AFileToAddThatIsGoneEndsWith3AndLeavesTheDrawing)
{
    const CKvBatchRun result = filesOf({ QStringLiteral("--add"),
                                         QStringLiteral("std/office.dxf"),
                                         QStringLiteral("--add"),
                                         QStringLiteral("gone.dxf") });

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "a.dxf: The standards file gone.dxf can't be found.\n");
    EXPECT_EQ(bytes(QStringLiteral("a.dxf")), redWalls().toBytes());
}

TEST_F(BatchFiles, RemovesByTextByPathAndByName)
{
    for (const char *file : { "std/office.dxf", "office.dxf", "FULL" }) {
        save(QStringLiteral("a.dxf"), redWalls());
        filesOf({ QStringLiteral("--add"),
                  QStringLiteral("std/office.dxf"),
                  QStringLiteral("--add"),
                  QStringLiteral("std/more.dxf") });
        const QString named = QString::fromUtf8(file) == QLatin1String("FULL")
            ? path(QStringLiteral("std/office.dxf"))
            : QString::fromUtf8(file);

        const CKvBatchRun result = filesOf({ QStringLiteral("--remove"), named });

        EXPECT_EQ(result.status, 0) << file;
        EXPECT_EQ(result.output, line("std/more.dxf")) << file;
    }
}

TEST_F(BatchFiles, RemovesAPathOfAnotherSystemAsItIsStored)
{
    CKvDrawingBuilder drawing = redWalls();
    drawing.standardsFiles({ QStringLiteral("C:\\std\\office.dws") });
    save(QStringLiteral("a.dxf"), drawing);

    EXPECT_EQ(filesOf({}).output, "C:\\std\\office.dws  (not found)\n");
    EXPECT_EQ(filesOf({ QStringLiteral("--remove"), QStringLiteral("C:\\std\\office.dws") }).output,
              "");
}

TEST_F(BatchFiles, AFileToRemoveThatIsNotListedEndsWith3)
{
    const CKvBatchRun result =
        filesOf({ QStringLiteral("--remove"), QStringLiteral("office.dxf") });

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.errors, "a.dxf: office.dxf is not in the list.\n");
}

TEST_F(BatchFiles, TellsWhereAFileIsFoundThatIsNotWhereItWas)
{
    CKvDrawingBuilder drawing = redWalls();
    drawing.standardsFiles({ QStringLiteral("C:\\std\\office.dxf") });
    save(QStringLiteral("a.dxf"), drawing);

    EXPECT_EQ(filesOf({ QStringLiteral("--search-path"), QStringLiteral("std") }).output,
              "C:\\std\\office.dxf  (found as " + fullPath(QStringLiteral("std/office.dxf"))
                  + ")\n");
}

TEST_F(BatchFiles, JsonTellsTheStoredTextAndWhatWasFound)
{
    CKvDrawingBuilder drawing = redWalls();
    drawing.standardsFiles(
        { path(QStringLiteral("std/office.dxf")), QStringLiteral("C:\\gone.dws") });
    save(QStringLiteral("a.dxf"), drawing);

    const auto report = json(filesOf({ QStringLiteral("-f"), QStringLiteral("json") }));

    const std::string office = fullPath(QStringLiteral("std/office.dxf"));
    EXPECT_EQ(
        report.at("standards").dump(),
        "[{\"stored\":\"" + office + "\",\"path\":\"" + office
            + "\",\"status\":\"found\"},{\"stored\":\"C:\\\\gone.dws\",\"path\":\"C:\\\\gone.dws\","
              "\"status\":\"not-found\"}]");
}

TEST_F(BatchFiles, ADrawingOfR12RefusesAListAndStaysAsItWas)
{
    save(QStringLiteral("a.dxf"), CKvDrawingBuilder("AC1009"));

    const CKvBatchRun result =
        filesOf({ QStringLiteral("--add"), QStringLiteral("std/office.dxf") });

    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.errors, HasSubstr("Save it as R2000 or newer first."));
    EXPECT_EQ(bytes(QStringLiteral("a.dxf")), CKvDrawingBuilder("AC1009").toBytes());
}

TEST_F(BatchFiles, ADrawingThatIsGoneEndsWith3)
{
    const CKvBatchRun result = run({ QStringLiteral("files"), QStringLiteral("gone.dxf") });

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.errors, "gone.dxf: There is no such file.\n");
}

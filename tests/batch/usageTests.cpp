// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include <gmock/gmock.h>

using ::testing::HasSubstr;

namespace
{

class BatchUsage : public CKvBatchTest
{
protected:
    /// Expects wrong usage with this text on standard error, and nothing else.
    void expectWrong(const QStringList &arguments, const char *text) const
    {
        const CKvBatchRun result = run(arguments);
        EXPECT_EQ(result.status, 2) << ::testing::PrintToString(result);
        EXPECT_EQ(result.output, "");
        EXPECT_THAT(result.errors, HasSubstr(text));
    }
};

QStringList words(const char *line)
{
    return QString::fromUtf8(line).split(QLatin1Char(' '));
}

} // namespace

TEST_F(BatchUsage, HelpAndVersionGoToStandardOutput)
{
    EXPECT_EQ(run({ QStringLiteral("--version") }).output, "kvstandards " KV_TEST_VERSION "\n");
    for (const char *line : { "--help",
                              "check --help",
                              "fix --help",
                              "files --help",
                              "ignore --help",
                              "show --help" }) {
        const CKvBatchRun help = run(words(line));
        EXPECT_EQ(help.status, 0) << line;
        EXPECT_THAT(help.output, HasSubstr("Exit status: 0")) << line;
        EXPECT_EQ(help.errors, "") << line;
    }
}

TEST_F(BatchUsage, WhatTheParserRefusesIsWrongUsage)
{
    save(QStringLiteral("a.dxf"), cleanDrawing());

    expectWrong({}, "subcommand");
    expectWrong(words("repair a.dxf"), "There is no command \"repair\". The commands are check, ");
    expectWrong(words("check a.dxf --no-such-option"), "--no-such-option");
    expectWrong(words("check a.dxf -s"), "-s");
    expectWrong(words("check a.dxf -f yaml"), "yaml");
    expectWrong(words("check a.dxf --candidates some"), "some");
    expectWrong(words("check a.dxf --color sometimes"), "sometimes");
    expectWrong(words("check a.dxf -j -1"), "-1");
    expectWrong(words("check a.dxf -j many"), "many");
    expectWrong(words("check a.dxf --timeout 0"), "--timeout");
    expectWrong(words("check a.dxf --timeout soon"), "soon");
    expectWrong(words("check a.dxf --timeout -1"), "--timeout");
    expectWrong(words("check a.dxf --timeout nan"), "above 0 and up to 2147483");
    expectWrong(words("check a.dxf --timeout inf"), "above 0 and up to 2147483");
    expectWrong(words("check a.dxf --timeout 2147484"), "above 0 and up to 2147483");
    expectWrong(words("check a.dxf --lang tlh"), "tlh");
    expectWrong(words("files"), "DRAWING");
    expectWrong(words("ignore a.dxf layers"), "NAME");
    expectWrong(words("show a.dxf -f csv"), "csv");
}

TEST_F(BatchUsage, ACategoryThatThereIsNoneOfIsWrongUsage)
{
    save(QStringLiteral("a.dxf"), cleanDrawing());

    expectWrong(words("check a.dxf --only walls"),
                "There is no category \"walls\". The categories are dimstyles, layers, linestyles, "
                "textstyles.");
    expectWrong(words("check a.dxf --only layers,"), "There is no category \"\".");
    expectWrong(words("check a.dxf --only LAYERS"), "There is no category \"LAYERS\".");
    expectWrong(words("ignore a.dxf walls X"), "There is no category \"walls\".");
    expectWrong(words("show a.dxf --only walls"), "There is no category \"walls\".");
}

TEST_F(BatchUsage, ARepairMustKnowWhereItGoes)
{
    save(QStringLiteral("a.dxf"), redWalls());

    expectWrong(words("fix a.dxf"), "Where shall the repaired drawings go?");
    expectWrong(words("fix a.dxf -o out --in-place"), "exclude each other");
    EXPECT_EQ(bytes(QStringLiteral("a.dxf")), redWalls().toBytes());
}

TEST_F(BatchUsage, ADifferenceNeedsTheTextFormat)
{
    expectWrong(words("fix a.dxf --diff --dry-run -f json"),
                "--diff goes with the text format only.");
}

TEST_F(BatchUsage, NoDrawingAtAllIsNoCleanRun)
{
    const CKvBatchRun none = run(words("check"));
    EXPECT_EQ(none.status, 3);
    EXPECT_EQ(none.output, "");
    EXPECT_EQ(none.errors, "There is no drawing to work on.\n");

    write(QStringLiteral("folder/readme.txt"), "text");
    EXPECT_EQ(run(words("check folder")).status, 3);
    EXPECT_EQ(run(words("fix folder --in-place")).status, 3);
}

TEST_F(BatchUsage, ANameThatLooksLikeAnOptionComesBehindTwoDashes)
{
    save(QStringLiteral("-a.dxf"), cleanDrawing());
    save(QStringLiteral("std.dxf"), officeStandards());

    EXPECT_EQ(run(words("check -s std.dxf -- -a.dxf")).status, 0);
}

TEST_F(BatchUsage, ADrawingMayBeCalledLikeACommand)
{
    save(QStringLiteral("fix"), cleanDrawing());
    save(QStringLiteral("std.dxf"), officeStandards());

    EXPECT_EQ(run(words("check -s std.dxf fix")).status, 0);
}

TEST_F(BatchUsage, AnOptionBeforeTheDrawingTakesOneFileOnly)
{
    save(QStringLiteral("a.dxf"), redWalls());
    save(QStringLiteral("std.dxf"), officeStandards());
    save(QStringLiteral("more.dxf"), officeStandards());

    const CKvBatchRun result = run(words("check -s std.dxf -s more.dxf --search-path . a.dxf"));

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output.substr(0, result.output.find('\n')), "a.dxf: 1 violation");
    EXPECT_EQ(run(words("files --add std.dxf a.dxf")).output,
              fullPath(QStringLiteral("std.dxf\n")));
    EXPECT_EQ(run(words("files --remove std.dxf a.dxf")).status, 0);
}

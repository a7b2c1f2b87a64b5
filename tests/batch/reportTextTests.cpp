// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include <gmock/gmock.h>

using ::testing::HasSubstr;
using ::testing::Not;

namespace
{

class BatchText : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        save(QStringLiteral("std.dxf"), officeStandards());
        save(QStringLiteral("clean.dxf"), cleanDrawing());
        save(QStringLiteral("red.dxf"), redWalls());
    }
    CKvBatchRun check(const char *arguments) const
    {
        return run(QStringLiteral("check -s std.dxf -j 1 ")
                       .append(QString::fromUtf8(arguments))
                       .split(QLatin1Char(' ')));
    }
};

} // namespace

TEST_F(BatchText, OneLineForACleanDrawingAndTheTotals)
{
    EXPECT_EQ(check("clean.dxf").output,
              "clean.dxf: no violations\n1 drawing checked: no violations\n");
}

TEST_F(BatchText, ViolationsStandInAlignedColumns)
{
    CKvDrawingBuilder standards("AC1032");
    standards.layer("壁").color(5).lineWeight(50);
    standards.layer("DOORS").color(3);
    save(QStringLiteral("std.dxf"), standards);
    CKvDrawingBuilder drawing("AC1032");
    drawing.layer("壁").color(1).lineWeight(25);
    drawing.layer("doors").color(2);
    drawing.layer("FLUR");
    drawing.layer("ALT").stamped(1, "anna");
    save(QStringLiteral("a.dxf"), drawing);

    const CKvBatchRun result = check("a.dxf red.dxf");

    EXPECT_EQ(
        result.output,
        "a.dxf: 3 violations, 1 ignored\n"
        "  Type   Name   Property    Current value  Standard value  From\n"
        "  Layer  壁     LineColor   red            blue            std.dxf\n"
        "  Layer  壁     LineWeight  0.25 mm        0.50 mm         std.dxf\n"
        "  Layer  doors  LineColor   yellow         green           DOORS in std.dxf\n"
        "  Layer  FLUR   no layer of that name in the standards; 2 candidates\n"
        "  Layer  ALT    no layer of that name in the standards; 2 candidates (ignored by anna)\n"
        "red.dxf: 2 violations\n"
        "  Layer  0      no layer of that name in the standards; 2 candidates\n"
        "  Layer  WALLS  no layer of that name in the standards; 2 candidates\n"
        "2 drawings checked: 5 violations, 1 ignored\n");
}

TEST_F(BatchText, FailuresAreToldWithTheirDrawing)
{
    write(QStringLiteral("broken.dxf"), "0\nSECTION\n2\nHEADER\nrubbish\n");
    CKvDrawingBuilder drawing = redWalls();
    drawing.standardsFiles({ QStringLiteral("C:\\std\\gone.dws") });
    save(QStringLiteral("lost.dxf"), drawing);

    const CKvBatchRun given = check("broken.dxf clean.dxf -s gone.dxf");
    EXPECT_EQ(given.status, 3);
    EXPECT_THAT(given.output, HasSubstr("broken.dxf: failed\n  broken.dxf:5: "));
    EXPECT_THAT(given.output,
                HasSubstr("clean.dxf: no violations\n  Standards file not found: "
                          + fullPath(QStringLiteral("gone.dxf")) + "\n"));
    EXPECT_THAT(given.output, HasSubstr("1 drawing checked: no violations; 1 not checked\n"));

    EXPECT_EQ(run({ QStringLiteral("check"), QStringLiteral("lost.dxf") }).output,
              "lost.dxf: not checked, it has no standards file that can be used\n"
              "  Standards file not found: C:\\std\\gone.dws\n"
              "0 drawings checked: no violations; 1 not checked\n");
}

TEST_F(BatchText, QuietTellsOnlyWhatIsWrong)
{
    const CKvBatchRun clean = check("clean.dxf --quiet");
    EXPECT_EQ(clean.status, 0);
    EXPECT_EQ(clean.output + clean.errors, "");

    const CKvBatchRun mixed = check("clean.dxf red.dxf --quiet");
    EXPECT_EQ(mixed.status, 1);
    EXPECT_EQ(mixed.output,
              "red.dxf: 1 violation\n"
              "  Type   Name   Property   Current value  Standard value  From\n"
              "  Layer  WALLS  LineColor  red            blue            std.dxf\n");
}

TEST_F(BatchText, ColoursComeOnlyWhenAskedForWhereThereIsNoTerminal)
{
    EXPECT_THAT(check("red.dxf").output, Not(HasSubstr("\x1b")));
    EXPECT_THAT(check("red.dxf --color never").output, Not(HasSubstr("\x1b")));
    EXPECT_THAT(check("red.dxf --color always").output, HasSubstr("\x1b[31mred\x1b[0m"));
    EXPECT_THAT(check("red.dxf --color always -f json").output, Not(HasSubstr("\x1b")));
    setEnvironment(QStringLiteral("NO_COLOR"), QStringLiteral("1"));
    EXPECT_THAT(check("red.dxf --color auto").output, Not(HasSubstr("\x1b")));
}

TEST_F(BatchText, ANameCanNotSteerTheTerminal)
{
    CKvDrawingBuilder drawing("AC1032");
    drawing.layer("A\x1B[31m");
    save(QStringLiteral("a.dxf"), drawing);

    const CKvBatchRun result = check("a.dxf");

    EXPECT_THAT(result.output, Not(HasSubstr("\x1b")));
    EXPECT_THAT(result.output, HasSubstr("A\\x1b[31m"));
}

TEST_F(BatchText, ProgressGoesToStandardErrorAndOnlyWhenAskedForWithoutATerminal)
{
    EXPECT_EQ(check("clean.dxf red.dxf").errors, "");
    EXPECT_EQ(check("clean.dxf red.dxf --progress always").errors,
              "[1/2] clean.dxf\n[2/2] red.dxf\n");
    EXPECT_EQ(check("clean.dxf red.dxf --progress never").errors, "");
}

TEST_F(BatchText, AllCandidatesShowTheirNames)
{
    const CKvBatchRun result = check("red.dxf --candidates all");

    EXPECT_EQ(result.output,
              "red.dxf: 1 violation\n"
              "  Type   Name   Property    Current value  Standard value  From\n"
              "  Layer  WALLS  LineColor   red            white           0 in std.dxf\n"
              "  Layer  WALLS  LineWeight  0.50 mm        Default         0 in std.dxf\n"
              "  Layer  WALLS  LineColor   red            blue            std.dxf\n"
              "  Layer  WALLS  LineColor   red            green           DOORS in std.dxf\n"
              "  Layer  WALLS  LineWeight  0.50 mm        Default         DOORS in std.dxf\n"
              "1 drawing checked: 1 violation\n");
}

TEST_F(BatchText, WithoutCandidatesASentenceTellsTheViolation)
{
    EXPECT_EQ(check("red.dxf --candidates none").output,
              "red.dxf: 1 violation\n"
              "  Layer  WALLS  other properties than in the standards; 3 candidates\n"
              "1 drawing checked: 1 violation\n");
}

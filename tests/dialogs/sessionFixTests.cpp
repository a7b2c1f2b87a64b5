// SPDX-License-Identifier: MIT
#include "CKvForeignMemory.h"
#include "CKvVerifyBench.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

const QStringList kTwo { QStringLiteral("A"), QStringLiteral("B") };
const QStringList kFive { QStringLiteral("A"),
                          QStringLiteral("B"),
                          QStringLiteral("C"),
                          QStringLiteral("D"),
                          QStringLiteral("E") };

} // namespace

TEST(SessionFix, FixRepairsByTheRecommendedCandidateAndGoesOn)
{
    CKvVerifyBench bench(kTwo);
    bench.show();

    bench.click("FixIssueButton");

    EXPECT_EQ(bench.takeRepairs(), std::vector<std::string> { "layers.applyFix A <- A ''" });
    EXPECT_EQ(bench.shown(), "B");
}

TEST(SessionFix, FixRepairsByTheCandidateThatTheUserHasChosen)
{
    CKvVerifyBench bench(kTwo);
    bench.show();

    bench.clickCandidate(1);
    bench.click("FixIssueButton");

    EXPECT_THAT(bench.takeRepairs(), ElementsAre("layers.applyFix A <- OTHER ''"));
}

TEST(SessionFix, AChoiceOfTheFirstRowStandsAgainstTheRecommendation)
{
    CKvVerifyBench bench(kTwo);
    bench.violation(0).recommendedFix = 1;
    bench.show();

    bench.clickCandidate(0);
    bench.click("FixIssueButton");

    EXPECT_THAT(bench.takeRepairs(), ElementsAre("layers.applyFix A <- A ''"));
}

TEST(SessionFix, AChoiceByTheKeyboardCountsAsMuch)
{
    CKvVerifyBench bench(kTwo);
    bench.show();

    bench.pressInCandidates(Qt::Key_Down);
    bench.click("FixIssueButton");

    EXPECT_THAT(bench.takeRepairs(), ElementsAre("layers.applyFix A <- OTHER ''"));
}

TEST(SessionFix, WithoutARecommendationTheUserMustChooseFirst)
{
    CKvVerifyBench bench(kTwo);
    bench.violation(0).recommendedFix = -1;
    bench.show();

    bench.click("FixIssueButton");
    const std::vector<std::string> withoutChoice = bench.takeRepairs();
    bench.clickCandidate(1);
    bench.click("FixIssueButton");

    EXPECT_THAT(withoutChoice, IsEmpty());
    EXPECT_THAT(bench.takeRepairs(), ElementsAre("layers.applyFix A <- OTHER ''"));
}

TEST(SessionFix, TheRepairIsDoneBeforeTheNextViolationIsPreviewed)
{
    CKvVerifyBench bench(kTwo);
    bench.show();
    bench.takeCalls();

    bench.click("FixIssueButton");

    // The preview is built when the row is selected, and once more when the table is there.
    EXPECT_THAT(bench.takeCalls(),
                ElementsAre("layers.applyFix A <- A ''",
                            "layers.propertyDifferences B -> B",
                            "layers.propertyDifferences B -> B"));
}

TEST(SessionFix, RepairedEntriesLeaveTheListAtTheEndOfTheWalk)
{
    CKvVerifyBench bench(kFive);
    bench.show();

    bench.click("FixIssueButton");
    bench.click("NextIssueButton");
    bench.click("FixIssueButton");
    bench.click("NextIssueButton");
    bench.click("NextIssueButton");
    std::string secondWalk;
    for (int i = 0; i < 3; ++i) {
        bench.click("NextIssueButton");
        secondWalk += bench.shown();
    }
    bench.click("NextIssueButton");

    EXPECT_EQ(secondWalk, "BDE");
    EXPECT_THAT(bench.summaries(), ElementsAre("5, 0, 2, 0", "3, 0, 0, 0"));
}

TEST(SessionFix, ARepairThatDoesNothingCountsAllTheSame)
{
    CKvVerifyBench bench(kTwo);
    bench.show();

    bench.click("FixIssueButton");
    bench.click("FixIssueButton");

    EXPECT_THAT(bench.summaries(), ElementsAre("2, 0, 2, 0"));
}

TEST(SessionFix, ARepairThatThrowsLeavesTheEntryWhereItIs)
{
    // Qt loses track of a button whose click throws.
    const CKvForeignMemory lostByQt;
    CKvVerifyBench bench(kTwo);
    bench.plugin().failsIn("applyFix");
    bench.show();

    const std::vector<std::string> failures =
        bench.failuresOf([&] { bench.click("FixIssueButton"); });
    const std::string afterwards = bench.shown();
    bench.click("NextIssueButton");
    bench.click("NextIssueButton");

    EXPECT_THAT(failures, ElementsAre("applyFix A <- A ''"));
    EXPECT_EQ(afterwards, "A");
    EXPECT_THAT(bench.summaries(), ElementsAre("2, 0, 0, 0"));
}

TEST(SessionFix, AnIgnoredEntryThatIsRepairedCountsTwiceAndLeaves)
{
    CKvVerifyBench bench(kTwo);
    bench.host().setShowIgnored(true);
    bench.setIgnored(0, "anna");
    bench.show();

    bench.click("FixIssueButton");
    bench.click("NextIssueButton");
    bench.click("NextIssueButton");
    const std::string secondWalk = bench.shown();
    bench.click("NextIssueButton");

    EXPECT_EQ(secondWalk, "B");
    EXPECT_THAT(bench.summaries(), ElementsAre("2, 0, 1, 1", "1, 0, 0, 0"));
}

TEST(SessionFix, TheRowOfAFormerViolationIsNotTheChoiceForTheNext)
{
    CKvVerifyBench bench(kTwo);
    bench.violation(1).recommendedFix = -1;
    bench.show();
    bench.clickCandidate(1);

    bench.click("NextIssueButton");

    EXPECT_EQ(bench.candidates(), "   B | office.dxf\n   OTHER | second.dxf\n");
    EXPECT_FALSE(bench.isOn("FixIssueButton"));
}

TEST(SessionFix, TheListThatWasGivenStaysAsItWas)
{
    CKvVerifyBench bench(kTwo);
    bench.show();

    bench.click("FixIssueButton");
    bench.click("FixIssueButton");

    EXPECT_FALSE(bench.violation(0).fixedManually);
    EXPECT_FALSE(bench.violation(1).fixedManually);
}

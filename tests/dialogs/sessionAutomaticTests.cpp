// SPDX-License-Identifier: MIT
#include "CKvVerifyBench.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr char kInvalidIndex[] = "The index is outside the array.";

const QStringList kThree { QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C") };

} // namespace

TEST(SessionAutomatic, EveryEntryIsRepairedAndOneSummaryTellsOfAll)
{
    CKvVerifyBench bench(kThree);
    bench.host().setFixAutomatically(true);

    bench.show();
    const std::vector<std::string> repairs = bench.takeRepairs();
    bench.click("NextIssueButton");

    EXPECT_THAT(repairs,
                ElementsAre("layers.applyFix A <- A ''",
                            "layers.applyFix B <- B ''",
                            "layers.applyFix C <- C ''"));
    EXPECT_THAT(bench.summaries(), ElementsAre("3, 3, 0, 0", "0, 0, 0, 0"));
}

TEST(SessionAutomatic, RepairedEntriesThatStayListedAreNotShownAgain)
{
    CKvVerifyBench bench(kThree);
    bench.host().setFixAutomatically(true);
    bench.dialog().setSkipSummary(true);
    bench.show();

    bench.dialog().setSkipSummary(false);
    bench.click("NextIssueButton");

    EXPECT_THAT(bench.summaries(), ElementsAre("3, 3, 0, 0"));
    EXPECT_EQ(bench.shown(), "");
}

TEST(SessionAutomatic, AnEmptyListHasNothingToRepair)
{
    CKvVerifyBench bench({});
    bench.host().setFixAutomatically(true);

    bench.show();

    EXPECT_THAT(bench.summaries(), ElementsAre("0, 0, 0, 0"));
    EXPECT_THAT(bench.takeCalls(), IsEmpty());
}

TEST(SessionAutomatic, WithoutARecommendationTheFirstCandidateIsTaken)
{
    CKvVerifyBench bench(kThree);
    bench.host().setFixAutomatically(true);
    bench.setCandidates(1, { QStringLiteral("X"), QStringLiteral("Y") }, -1);

    bench.show();

    EXPECT_THAT(bench.takeRepairs(),
                ElementsAre("layers.applyFix A <- A ''",
                            "layers.applyFix B <- X ''",
                            "layers.applyFix C <- C ''"));
    EXPECT_THAT(bench.summaries(), ElementsAre("3, 3, 0, 0"));
}

TEST(SessionAutomatic, AFixByTheButtonIsManualAlsoWithTheRecommendedCandidate)
{
    CKvVerifyBench bench(kThree);
    bench.show();
    bench.host().setFixAutomatically(true);

    for (int i = 0; i < 3; ++i) {
        bench.click("FixIssueButton");
    }

    EXPECT_THAT(bench.summaries(), ElementsAre("3, 0, 3, 0"));
}

TEST(SessionAutomatic, AnIgnoredFirstEntryPutsTheFlagOnALaterOneAndEndsInAnError)
{
    CKvVerifyBench bench(kThree);
    bench.host().setFixAutomatically(true);
    bench.setIgnored(0, "anna");

    const std::vector<std::string> failures = bench.failuresOf([&] { bench.show(); });

    bench.host().setShowIgnored(true);
    bench.click("NextIssueButton");

    // A is repaired but B is marked; B is repaired but C is marked; then the pass is over, and the
    // list has only A left when the third turn comes.
    EXPECT_THAT(bench.takeRepairs(),
                ElementsAre("layers.applyFix A <- A ''", "layers.applyFix B <- B ''"));
    EXPECT_THAT(bench.summaries(), ElementsAre("3, 2, 0, 1"));
    EXPECT_THAT(failures, ElementsAre(kInvalidIndex));
    EXPECT_EQ(bench.shown(), "A");
}

TEST(SessionAutomatic, AnEntrySkippedWithNothingMarkedBehindItEndsOnTheCursorBeforeTheList)
{
    CKvVerifyBench bench(kThree);
    bench.host().setFixAutomatically(true);
    bench.dialog().setSkipSummary(true);
    bench.setIgnored(0, "anna");
    OdArray<CKvStdsViolation> list;
    for (unsigned i = 0; i < 3; ++i) {
        list.append(bench.violation(i));
    }
    bench.dialog().setViolations(list);

    const std::vector<std::string> failures = bench.failuresOf([&] { bench.show(); });

    // Without a summary nothing leaves the list, so the third entry is still there to be repaired.
    EXPECT_THAT(bench.takeRepairs(),
                ElementsAre("layers.applyFix A <- A ''",
                            "layers.applyFix B <- B ''",
                            "layers.applyFix C <- C ''"));
    EXPECT_THAT(failures, ElementsAre(kInvalidIndex));
}

TEST(SessionAutomatic, IgnoredEntriesAloneAreRepairedOnceAndEndInAnError)
{
    CKvVerifyBench bench(kThree);
    bench.host().setFixAutomatically(true);
    for (unsigned i = 0; i < 3; ++i) {
        bench.setIgnored(i, "anna");
    }

    const std::vector<std::string> failures = bench.failuresOf([&] { bench.show(); });

    EXPECT_THAT(bench.summaries(), ElementsAre("3, 0, 0, 3"));
    EXPECT_THAT(bench.takeRepairs(), ElementsAre("layers.applyFix A <- A ''"));
    EXPECT_THAT(failures, ElementsAre(kInvalidIndex));
}

TEST(SessionAutomatic, IgnoredEntriesThatAreShownAreRepairedWithTheOthers)
{
    CKvVerifyBench bench(kThree);
    bench.host().setFixAutomatically(true);
    bench.host().setShowIgnored(true);
    bench.setIgnored(0, "anna");

    bench.show();

    EXPECT_THAT(bench.summaries(), ElementsAre("3, 3, 0, 1"));
}

TEST(SessionAutomatic, AnEntryWithoutCandidatesEndsInAnError)
{
    CKvVerifyBench bench(kThree);
    bench.host().setFixAutomatically(true);
    bench.setCandidates(1, {}, -1);

    const std::vector<std::string> failures = bench.failuresOf([&] { bench.show(); });

    EXPECT_THAT(bench.takeRepairs(), ElementsAre("layers.applyFix A <- A ''"));
    EXPECT_THAT(failures, ElementsAre(kInvalidIndex));
    EXPECT_EQ(bench.shown(), "B");
    EXPECT_THAT(bench.summaries(), IsEmpty());
}

TEST(SessionAutomatic, AnEntryWithoutAnErrorIsPassedOver)
{
    CKvVerifyBench bench({ QStringLiteral("A"), QStringLiteral("B") });
    bench.host().setFixAutomatically(true);
    bench.violation(1).error = CKvStdsErrorPtr();

    bench.show();

    EXPECT_THAT(bench.takeRepairs(), ElementsAre("layers.applyFix A <- A ''"));
    EXPECT_THAT(bench.summaries(), IsEmpty());
}

TEST(SessionAutomatic, BehindAnEntryWithoutAnErrorTheRepairIsMarkedOnThatEntry)
{
    CKvVerifyBench bench(kThree);
    bench.host().setFixAutomatically(true);
    bench.violation(1).error = CKvStdsErrorPtr();
    bench.violation(2).recommendedFix = 1;

    bench.show();
    const std::string shown = bench.shown();
    bench.click("NextIssueButton");

    // B stood still when C was repaired, so C is shown and counts as not repaired. Nothing was
    // chosen in B's empty table, so C's own recommendation counted.
    EXPECT_THAT(bench.takeRepairs(),
                ElementsAre("layers.applyFix A <- A ''", "layers.applyFix C <- OTHER ''"));
    EXPECT_EQ(shown, "C");
    EXPECT_THAT(bench.summaries(), ElementsAre("3, 2, 0, 0"));
}

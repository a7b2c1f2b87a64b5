// SPDX-License-Identifier: MIT
#include "CKvForeignMemory.h"
#include "CKvUtilsBase.h"
#include "CKvVerifyBench.h"

#include <QCheckBox>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{

constexpr char kBox[] = "IgnoreViolationCheckBox";
const QStringList kTwo { QStringLiteral("A"), QStringLiteral("B") };

std::string userName()
{
    return CKvUtilsBase::getUserName().toQString().toStdString();
}

std::string stampOfUser()
{
    return "300=" + userName() + " 90=1";
}

/// "Ignored by: anna", empty when nothing is said.
std::string ignoredBy(CKvVerifyBench &bench)
{
    return bench.text("label_5") + (bench.text("label_5").empty() ? "" : " ")
        + bench.text("IgnoredByLoginNameLabel");
}

} // namespace

TEST(SessionIgnore, TickingStampsTheObjectAtOnceAndStaysWithTheViolation)
{
    CKvVerifyBench bench(kTwo);
    bench.show();

    bench.click(kBox);

    EXPECT_EQ(bench.stampOf("A"), stampOfUser());
    EXPECT_EQ(bench.stampOf("B"), "none");
    EXPECT_EQ(bench.shown(), "A");
    EXPECT_TRUE(bench.widget<QCheckBox>(kBox).isChecked());
    EXPECT_EQ(ignoredBy(bench), "Ignored by: " + userName());
    EXPECT_TRUE(bench.isOn("FixIssueButton"));
}

TEST(SessionIgnore, UntickingLeavesAStampThatSaysSo)
{
    CKvVerifyBench bench(kTwo);
    bench.show();
    bench.click(kBox);

    bench.click(kBox);
    bench.click("NextIssueButton");
    bench.click("NextIssueButton");

    EXPECT_EQ(bench.stampOf("A"), "300= 90=0");
    EXPECT_THAT(bench.summaries(), ElementsAre("2, 0, 0, 0"));
}

TEST(SessionIgnore, UntickingEmptiesTheLabelsAndFixFollowsTheSelection)
{
    CKvVerifyBench bench(kTwo);
    bench.violation(0).recommendedFix = -1;
    bench.show();
    bench.click(kBox);
    const bool isOnTicked = bench.isOn("FixIssueButton");

    bench.click(kBox);
    const bool isOnUnticked = bench.isOn("FixIssueButton");
    bench.clickCandidate(0);

    EXPECT_FALSE(isOnTicked);
    EXPECT_FALSE(isOnUnticked);
    EXPECT_TRUE(bench.isOn("FixIssueButton"));
    EXPECT_EQ(ignoredBy(bench), "");
}

TEST(SessionIgnore, AnIgnoredEntryIsCountedAndNotShownAgain)
{
    CKvVerifyBench bench(kTwo);
    bench.show();

    bench.click(kBox);
    bench.click("NextIssueButton");
    bench.click("NextIssueButton");
    bench.click("NextIssueButton");
    const std::string secondWalk = bench.shown();
    bench.click("NextIssueButton");

    EXPECT_EQ(secondWalk, "B");
    EXPECT_THAT(bench.summaries(), ElementsAre("2, 0, 0, 1", "2, 0, 0, 1"));
}

TEST(SessionIgnore, IgnoredEntriesAreShownWithTheNameOfTheirStampWhenTheSettingSaysSo)
{
    CKvVerifyBench bench(kTwo);
    bench.host().setShowIgnored(true);
    bench.setIgnored(0, "anna");
    bench.setIgnored(1, "berta");
    bench.show();

    const std::string first = bench.shown() + ' ' + ignoredBy(bench);
    const bool isFirstTicked = bench.widget<QCheckBox>(kBox).isChecked();
    bench.click("NextIssueButton");
    const std::string second = bench.shown() + ' ' + ignoredBy(bench);

    EXPECT_EQ(first, "A Ignored by: anna");
    EXPECT_TRUE(isFirstTicked);
    EXPECT_EQ(second, "B Ignored by: berta");
    EXPECT_TRUE(bench.widget<QCheckBox>(kBox).isChecked());
}

TEST(SessionIgnore, BetweenWalksTheBoxIsNotTicked)
{
    CKvVerifyBench bench({ QStringLiteral("A") });
    bench.show();
    bench.click(kBox);

    bench.click("NextIssueButton");

    EXPECT_FALSE(bench.widget<QCheckBox>(kBox).isChecked());
    EXPECT_EQ(ignoredBy(bench), "");
}

TEST(SessionIgnore, TheSettingIsReadAtEachStep)
{
    CKvVerifyBench bench({ QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C") });
    bench.setIgnored(1, "anna");
    bench.show();

    bench.host().setShowIgnored(true);
    bench.click("NextIssueButton");

    EXPECT_EQ(bench.shown(), "B");
}

TEST(SessionIgnore, TheNameOfThePresentUserIsNotKeptWithTheEntry)
{
    CKvVerifyBench bench(kTwo);
    bench.host().setShowIgnored(true);
    bench.setIgnored(0, "anna");
    bench.show();

    bench.click(kBox);
    const std::string untickedStamp = bench.stampOf("A");
    bench.click(kBox);

    // The entry still says anna, whom the audit found; the drawing says who ticked it last.
    EXPECT_EQ(untickedStamp, "300= 90=0");
    EXPECT_EQ(ignoredBy(bench), "Ignored by: anna");
    EXPECT_EQ(bench.stampOf("A"), stampOfUser());
}

TEST(SessionIgnore, AnIgnoredEntryCanBeFixed)
{
    CKvVerifyBench bench(kTwo);
    bench.show();

    bench.click(kBox);
    bench.click("FixIssueButton");
    bench.click("NextIssueButton");

    EXPECT_THAT(bench.takeRepairs(), ElementsAre("layers.applyFix A <- A ''"));
    EXPECT_THAT(bench.summaries(), ElementsAre("2, 0, 1, 1"));
    EXPECT_EQ(bench.stampOf("A"), stampOfUser());
}

TEST(SessionIgnore, SpaceTicksTheBox)
{
    CKvVerifyBench bench(kTwo);
    bench.show();

    bench.press(kBox, Qt::Key_Space);

    EXPECT_EQ(bench.stampOf("A"), stampOfUser());
}

TEST(SessionIgnore, ADrawingWithoutRoomForStampsLeavesTheBoxAsItWas)
{
    // Qt loses track of a button whose click throws.
    const CKvForeignMemory lostByQt;
    CKvVerifyBench bench(kTwo, CKvDrawingBuilder("AC1009"));
    bench.show();

    const std::vector<std::string> failures = bench.failuresOf([&] { bench.click(kBox); });
    const bool isTicked = bench.widget<QCheckBox>(kBox).isChecked();
    bench.click("NextIssueButton");
    bench.click("NextIssueButton");

    EXPECT_EQ(failures.size(), 1U);
    EXPECT_FALSE(isTicked);
    EXPECT_THAT(bench.summaries(), ElementsAre("2, 0, 0, 0"));
}

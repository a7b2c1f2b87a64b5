// SPDX-License-Identifier: MIT
#include "CKvVerifyBench.h"
#include "helpTopics.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QShowEvent>
#include <QTest>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

const QStringList kThree { QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C") };

/// What a session between walks leaves enabled, "Fix Next Options Close Help" at most.
std::string buttonsOn(CKvVerifyBench &bench)
{
    std::string text;
    const auto add = [&text](const char *name, bool isOn) {
        if (isOn) {
            text += (text.empty() ? "" : " ") + std::string(name);
        }
    };
    add("Fix", bench.isOn("FixIssueButton"));
    add("Next", bench.isOn("NextIssueButton"));
    add("Options", bench.isOn("OptionsButton"));
    const auto *box = bench.dialog().findChild<QDialogButtonBox *>();
    add("Close", box->button(QDialogButtonBox::Close)->isEnabled());
    add("Help", box->button(QDialogButtonBox::Help)->isEnabled());
    return text;
}

/// Names of the widgets of the display that are on.
std::string displayOn(CKvVerifyBench &bench)
{
    std::string text;
    for (const char *name : { "label",
                              "ObjectTypeLabel",
                              "ObjectNameLabel",
                              "ProblemDescLabel",
                              "label_2",
                              "ReplaceWithTableWidget",
                              "label_3",
                              "PreviewChangesTableWidget",
                              "IgnoreViolationCheckBox",
                              "label_5",
                              "IgnoredByLoginNameLabel" }) {
        if (bench.isOn(name)) {
            text += (text.empty() ? "" : " ") + std::string(name);
        }
    }
    return text;
}

} // namespace

TEST(SessionWalk, TheFirstViolationIsShownOnceTheDialogIsThere)
{
    CKvVerifyBench bench(kThree);

    bench.dialog().show();
    const std::string atOnce = bench.shown();
    CKvVerifyBench::settle();

    EXPECT_EQ(atOnce, "");
    EXPECT_EQ(bench.shown(), "A");
    EXPECT_EQ(bench.text("ObjectTypeLabel"), "  Layer:");
    EXPECT_EQ(bench.text("ProblemDescLabel"), "  Layer properties are non-standard.");
    EXPECT_THAT(bench.summaries(), IsEmpty());
}

TEST(SessionWalk, NextGoesOnInTheOrderOfTheList)
{
    CKvVerifyBench bench(kThree);
    bench.show();

    bench.click("NextIssueButton");
    const std::string second = bench.shown();
    bench.click("NextIssueButton");

    EXPECT_EQ(second, "B");
    EXPECT_EQ(bench.shown(), "C");
    EXPECT_THAT(bench.takeRepairs(), IsEmpty());
}

TEST(SessionWalk, EnterGoesOnToo)
{
    CKvVerifyBench bench(kThree);
    bench.show();

    bench.pressInCandidates(Qt::Key_Return);

    EXPECT_EQ(bench.shown(), "B");
}

TEST(SessionWalk, AWalkWithoutActionsRemovesNothingAndTheNextOneBeginsAnew)
{
    CKvVerifyBench bench(kThree);
    bench.show();
    for (int i = 0; i < 3; ++i) {
        bench.click("NextIssueButton");
    }
    const std::string betweenWalks = bench.shown();

    bench.click("NextIssueButton");
    const std::string secondWalk = bench.shown();
    for (int i = 0; i < 3; ++i) {
        bench.click("NextIssueButton");
    }

    EXPECT_EQ(betweenWalks, "");
    EXPECT_EQ(secondWalk, "A");
    EXPECT_THAT(bench.summaries(), ElementsAre("3, 0, 0, 0", "3, 0, 0, 0"));
    EXPECT_TRUE(bench.dialog().isVisible());
}

TEST(SessionWalk, AnEmptyListGoesStraightToTheSummaryAndEachNextShowsItAgain)
{
    CKvVerifyBench bench({});

    bench.show();
    const std::vector<std::string> atFirst = bench.summaries();
    bench.click("NextIssueButton");
    bench.click("NextIssueButton");

    EXPECT_THAT(atFirst, ElementsAre("0, 0, 0, 0"));
    EXPECT_THAT(bench.summaries(), ElementsAre("0, 0, 0, 0", "0, 0, 0, 0", "0, 0, 0, 0"));
    EXPECT_TRUE(bench.dialog().isVisible());
    EXPECT_EQ(buttonsOn(bench), "Next Options Close Help");
}

TEST(SessionWalk, IgnoredEntriesAloneGoStraightToTheSummaryWhenTheyAreNotShown)
{
    CKvVerifyBench bench(kThree);
    for (unsigned i = 0; i < 3; ++i) {
        bench.setIgnored(i, "anna");
    }

    bench.show();
    bench.click("NextIssueButton");

    EXPECT_THAT(bench.summaries(), ElementsAre("3, 0, 0, 3", "3, 0, 0, 3"));
}

TEST(SessionWalk, AViolationShowsAllControls)
{
    CKvVerifyBench bench(kThree);

    bench.show();

    EXPECT_EQ(buttonsOn(bench), "Fix Next Options Close Help");
    EXPECT_EQ(displayOn(bench),
              "label ObjectTypeLabel ObjectNameLabel ProblemDescLabel label_2 "
              "ReplaceWithTableWidget label_3 PreviewChangesTableWidget IgnoreViolationCheckBox "
              "label_5 IgnoredByLoginNameLabel");
}

TEST(SessionWalk, BetweenWalksNextIsOnAndFixAndTheDisplayAreOff)
{
    CKvVerifyBench bench({ QStringLiteral("A") });
    bench.show();

    bench.click("NextIssueButton");

    EXPECT_EQ(buttonsOn(bench), "Next Options Close Help");
    // These are never switched off as a whole; they are only empty.
    EXPECT_EQ(displayOn(bench), "ObjectTypeLabel label_5 IgnoredByLoginNameLabel");
    EXPECT_EQ(bench.text("ObjectTypeLabel"), "");
    EXPECT_EQ(bench.text("ProblemDescLabel"), "");
    EXPECT_EQ(bench.text("label_5"), "");
    EXPECT_EQ(bench.text("IgnoredByLoginNameLabel"), "");
    EXPECT_FALSE(bench.widget<QAbstractButton>("IgnoreViolationCheckBox").isChecked());
}

TEST(SessionWalk, AnEmptyListLeavesTheDescriptionOnAndEmpty)
{
    CKvVerifyBench bench({});

    bench.show();

    EXPECT_EQ(displayOn(bench), "ObjectTypeLabel ProblemDescLabel label_5 IgnoredByLoginNameLabel");
    EXPECT_EQ(bench.text("ProblemDescLabel"), "");
    EXPECT_EQ(bench.text("label_5"), "");
}

TEST(SessionWalk, EnterBeginsTheNextWalk)
{
    CKvVerifyBench bench({ QStringLiteral("A") });
    bench.show();
    bench.click("FixIssueButton");
    const std::string betweenWalks = bench.shown();

    QTest::keyClick(bench.dialog().focusWidget(), Qt::Key_Return);
    CKvVerifyBench::settle();

    EXPECT_EQ(betweenWalks, "");
    EXPECT_THAT(bench.host().requests(), IsEmpty());
    EXPECT_THAT(bench.summaries(), ElementsAre("1, 0, 1, 0", "0, 0, 0, 0"));
}

TEST(SessionWalk, AnEntryWithoutAnErrorIsBlankAndCantBeFixedOrIgnored)
{
    CKvVerifyBench bench(kThree);
    bench.violation(0).error = CKvStdsErrorPtr();
    bench.show();

    const std::string shown = bench.shown();
    bench.click("FixIssueButton");
    bench.click("IgnoreViolationCheckBox");
    const std::string stillShown = bench.shown();
    bench.click("NextIssueButton");

    EXPECT_EQ(shown, "");
    EXPECT_EQ(stillShown, "");
    EXPECT_EQ(bench.shown(), "B");
    EXPECT_THAT(bench.takeRepairs(), IsEmpty());
}

TEST(SessionWalk, TheSummaryIsAChildOfTheDialog)
{
    CKvVerifyBench bench({});
    const QWidget *parent = nullptr;
    bench.script().answer(QStringLiteral("CKvVerfiyCompleteMessage"), [&parent](QDialog &summary) {
        parent = summary.parentWidget();
        summary.reject();
    });

    bench.show();

    EXPECT_EQ(parent, &bench.dialog());
}

TEST(SessionWalk, ANewListStartsAgainBeforeItsFirstEntry)
{
    CKvVerifyBench bench(kThree);
    bench.show();
    bench.click("NextIssueButton");
    OdArray<CKvStdsViolation> list;
    list.append(bench.violation(2));

    bench.dialog().setViolations(list);
    bench.click("NextIssueButton");
    const std::string first = bench.shown();
    bench.click("NextIssueButton");

    EXPECT_EQ(first, "C");
    EXPECT_THAT(bench.summaries(), ElementsAre("1, 0, 0, 0"));
}

TEST(SessionWalk, WithoutSummaryAWalkEndsQuietlyAndRemovesNothing)
{
    CKvVerifyBench bench(kThree);
    bench.dialog().setSkipSummary(true);
    bench.show();

    bench.click("FixIssueButton");
    bench.click("NextIssueButton");
    bench.click("NextIssueButton");
    bench.dialog().setSkipSummary(false);
    bench.click("NextIssueButton");
    // The repaired one is passed over, but still counted.
    const std::string secondWalk = bench.shown();
    bench.click("NextIssueButton");
    bench.click("NextIssueButton");

    EXPECT_EQ(secondWalk, "B");
    EXPECT_THAT(bench.summaries(), ElementsAre("3, 0, 1, 0"));
}

TEST(SessionWalk, WithoutStandardsFilesTheEndOfAWalkSaysSo)
{
    CKvVerifyBench bench({ QStringLiteral("A") });
    bench.dialog().setNoStandardsFiles(true);
    bench.show();

    bench.click("NextIssueButton");

    EXPECT_EQ(bench.text("ProblemDescLabel"),
              "There are no standards files associated with the current drawing.");
    EXPECT_THAT(bench.summaries(), ElementsAre("1, 0, 0, 0"));
}

TEST(SessionWalk, TheCloseButtonEndsTheDialogInTheMiddleOfAWalk)
{
    CKvVerifyBench bench(kThree);
    bench.script().answer(QStringLiteral("CKvVerifyStandards"), [&bench](QDialog &dialog) {
        bench.click("FixIssueButton");
        const auto *box = dialog.findChild<QDialogButtonBox *>();
        QTest::mouseClick(box->button(QDialogButtonBox::Close), Qt::LeftButton);
    });

    const int result = bench.dialog().exec();

    EXPECT_EQ(result, 1);
    EXPECT_THAT(bench.takeRepairs(), ElementsAre("layers.applyFix A <- A ''"));
    EXPECT_THAT(bench.summaries(), IsEmpty());
}

TEST(SessionWalk, ClosingFromTheTitleBarDoesTheSame)
{
    CKvVerifyBench bench(kThree);
    bench.script().answer(QStringLiteral("CKvVerifyStandards"), [&bench](QDialog &dialog) {
        bench.click("FixIssueButton");
        EXPECT_TRUE(dialog.close());
    });

    const int result = bench.dialog().exec();

    EXPECT_EQ(result, 1);
    EXPECT_THAT(bench.takeRepairs(), ElementsAre("layers.applyFix A <- A ''"));
    EXPECT_THAT(bench.summaries(), IsEmpty());
}

TEST(SessionWalk, EscapeEndsTheDialogToo)
{
    CKvVerifyBench bench(kThree);
    bench.show();
    bench.click("FixIssueButton");

    bench.press("ReplaceWithTableWidget", Qt::Key_Escape);

    EXPECT_FALSE(bench.dialog().isVisible());
    EXPECT_THAT(bench.takeRepairs(), ElementsAre("layers.applyFix A <- A ''"));
    EXPECT_THAT(bench.summaries(), IsEmpty());
}

TEST(SessionWalk, EachShowTakesAFirstStep)
{
    CKvVerifyBench bench(kThree);
    bench.show();

    bench.dialog().hide();
    bench.show();

    EXPECT_EQ(bench.shown(), "B");
}

TEST(SessionWalk, AShowThatTheSystemReportsTakesNoStep)
{
    CKvVerifyBench bench(kThree);
    bench.show();
    QShowEvent restored;
    QSpontaneKeyEvent::setSpontaneous(&restored);

    QCoreApplication::instance()->notify(&bench.dialog(), &restored);
    CKvVerifyBench::settle();

    EXPECT_EQ(bench.shown(), "A");
}

TEST(SessionWalk, TheDialogComesUpOverTheMainWindow)
{
    CKvVerifyBench bench(kThree);
    bench.host().mainWindow()->setGeometry(100, 50, 600, 500);

    bench.show();

    const QPoint distance =
        bench.dialog().geometry().center() - bench.host().mainWindow()->geometry().center();
    EXPECT_LT(distance.manhattanLength(), 20) << distance.x() << ' ' << distance.y();
}

TEST(SessionWalk, HelpOpensTheTopicOfTheCommand)
{
    CKvVerifyBench bench(kThree);
    bench.show();
    std::vector<int> topics;
    setHelpTopicViewer([&topics](int topic) { topics.push_back(topic); });

    const auto *box = bench.dialog().findChild<QDialogButtonBox *>();
    QTest::mouseClick(box->button(QDialogButtonBox::Help), Qt::LeftButton);
    bench.press("ReplaceWithTableWidget", Qt::Key_F1);
    setHelpTopicViewer({});

    EXPECT_THAT(topics, ElementsAre(3072, 3072));
    EXPECT_EQ(bench.shown(), "A");
}

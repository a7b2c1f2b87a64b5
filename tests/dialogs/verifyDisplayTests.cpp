// SPDX-License-Identifier: MIT
#include "CKvUtilsBase.h"
#include "CKvVerifyBench.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace
{

const QStringList kTwo { QStringLiteral("A"), QStringLiteral("B") };

} // namespace

TEST(VerifyDisplay, CandidatesAreShownByNameAndFileAndTheRecommendedOneIsMarkedAndSelected)
{
    CKvVerifyBench bench(kTwo);
    bench.violation(0).recommendedFix = 1;

    bench.show();

    EXPECT_EQ(bench.candidates(), "   A | office.dxf\n>* OTHER | second.dxf\n");
    EXPECT_EQ(bench.preview(), "Name | A | OTHER\n");
    EXPECT_TRUE(bench.isOn("FixIssueButton"));
}

TEST(VerifyDisplay, WithoutARecommendationNothingIsMarkedSelectedOrPreviewed)
{
    CKvVerifyBench bench(kTwo);
    bench.violation(0).recommendedFix = -1;
    bench.show();

    const std::string candidates = bench.candidates();
    const bool isFixOn = bench.isOn("FixIssueButton");
    const std::vector<std::string> calls = bench.takeCalls();
    bench.clickCandidate(0);

    EXPECT_EQ(candidates, "   A | office.dxf\n   OTHER | second.dxf\n");
    EXPECT_FALSE(isFixOn);
    EXPECT_EQ(calls, std::vector<std::string>());
    EXPECT_EQ(bench.candidates(), ">  A | office.dxf\n   OTHER | second.dxf\n");
    EXPECT_EQ(bench.preview(), "Name | A | A\n");
    EXPECT_TRUE(bench.isOn("FixIssueButton"));
}

TEST(VerifyDisplay, ThePreviewOfAFormerViolationIsClearedWhereNothingIsRecommended)
{
    CKvVerifyBench bench(kTwo);
    bench.violation(1).recommendedFix = -1;
    bench.show();

    bench.click("NextIssueButton");

    EXPECT_EQ(bench.preview(), "\n");
}

TEST(VerifyDisplay, AViolationWithoutCandidatesHasNoRowsButItsHeader)
{
    CKvVerifyBench bench(kTwo);
    bench.setCandidates(0, {}, -1);

    bench.show();

    EXPECT_EQ(bench.candidates(), "");
    EXPECT_EQ(bench.headers(),
              " | Layer | Standards File\nProperty | Current Value | Standard Value\n");
    EXPECT_FALSE(bench.isOn("FixIssueButton"));
    EXPECT_TRUE(bench.isOn("NextIssueButton"));
}

TEST(VerifyDisplay, AnotherRowMovesThePreviewAndLeavesTheMark)
{
    CKvVerifyBench bench(kTwo);
    bench.show();

    bench.clickCandidate(1);

    EXPECT_EQ(bench.candidates(), " * A | office.dxf\n>  OTHER | second.dxf\n");
    EXPECT_EQ(bench.preview(), "Name | A | OTHER\n");
    EXPECT_TRUE(bench.isOn("FixIssueButton"));
}

TEST(VerifyDisplay, CursorKeysMoveThePreviewToo)
{
    CKvVerifyBench bench(kTwo);
    bench.show();

    bench.pressInCandidates(Qt::Key_Down);
    const std::string down = bench.candidates() + bench.preview();
    const bool isOnDown = bench.isOn("FixIssueButton");
    bench.pressInCandidates(Qt::Key_Up);

    EXPECT_EQ(down, " * A | office.dxf\n>  OTHER | second.dxf\nName | A | OTHER\n");
    EXPECT_TRUE(isOnDown);
    EXPECT_EQ(bench.candidates(), ">* A | office.dxf\n   OTHER | second.dxf\n");
    EXPECT_EQ(bench.preview(), "Name | A | A\n");
    EXPECT_TRUE(bench.isOn("FixIssueButton"));
}

TEST(VerifyDisplay, APreviewIsAskedForOnceAKeyAndWithFreshLists)
{
    CKvVerifyBench bench(kTwo);
    bench.show();
    bench.takeCalls();

    bench.pressInCandidates(Qt::Key_Down);

    EXPECT_EQ(bench.takeCalls(),
              std::vector<std::string> { "layers.propertyDifferences A -> OTHER" });
}

TEST(VerifyDisplay, TheHeaderOfTheNamesIsTheTypeOfTheObject)
{
    CKvVerifyBench bench(kTwo);
    bench.violation(1).error->setObjectType(CKvString("Line style"));
    bench.show();

    const std::string first = bench.headers();
    bench.click("NextIssueButton");

    EXPECT_EQ(first, " | Layer | Standards File\nProperty | Current Value | Standard Value\n");
    EXPECT_EQ(bench.headers(),
              " | Line style | Standards File\nProperty | Current Value | Standard Value\n");
    EXPECT_EQ(bench.text("ObjectTypeLabel"), "  Line style:");
}

TEST(VerifyDisplay, BetweenWalksAllHeadersAreEmptyAndComeBackWithTheNextViolation)
{
    CKvVerifyBench bench({ QStringLiteral("A") });
    bench.show();

    bench.click("NextIssueButton");
    const std::string betweenWalks = bench.headers();
    bench.click("NextIssueButton");

    EXPECT_EQ(betweenWalks, " |  | \n |  | \n");
    EXPECT_EQ(bench.headers(),
              " | Layer | Standards File\nProperty | Current Value | Standard Value\n");
}

TEST(VerifyDisplay, BetweenWalksTheTablesAreEmpty)
{
    CKvVerifyBench bench({ QStringLiteral("A") });
    bench.show();

    bench.click("NextIssueButton");

    EXPECT_EQ(bench.candidates(), "\n\n");
    EXPECT_EQ(bench.preview(), "\n");
}

TEST(VerifyDisplay, FewerRowsLeaveNoneOfTheFormerViolation)
{
    CKvVerifyBench bench(kTwo);
    bench.setCandidates(1, { QStringLiteral("B") }, 0);
    bench.show();

    bench.click("NextIssueButton");

    EXPECT_EQ(bench.candidates(), ">* B | office.dxf\n");
}

TEST(VerifyDisplay, ABoxTickedInThisRunShowsThePresentUserAndKeepsTheEntryWithoutAName)
{
    CKvVerifyBench bench({ QStringLiteral("A") });
    bench.host().setShowIgnored(true);
    bench.show();

    bench.click("IgnoreViolationCheckBox");
    bench.click("NextIssueButton");
    bench.click("NextIssueButton");

    // Shown again, the entry would tell a name that it had kept; it has none.
    EXPECT_TRUE(bench.widget<QCheckBox>("IgnoreViolationCheckBox").isChecked());
    EXPECT_EQ(bench.text("IgnoredByLoginNameLabel"),
              CKvUtilsBase::getUserName().toQString().toStdString());
    EXPECT_EQ(bench.text("label_5"), "Ignored by:");
}

TEST(VerifyDisplay, AnEntryWithoutAnErrorIsSwitchedOnAndNamesNobody)
{
    CKvVerifyBench bench({ QStringLiteral("A") });
    bench.violation(0).error = CKvStdsErrorPtr();
    bench.show();
    const std::string captionAtFirst = bench.text("label_5");
    bench.click("NextIssueButton");
    const bool isOnBetweenWalks = bench.isOn("ProblemDescLabel");

    bench.click("NextIssueButton");

    EXPECT_EQ(captionAtFirst, "");
    EXPECT_FALSE(isOnBetweenWalks);
    EXPECT_TRUE(bench.isOn("ProblemDescLabel"));
    EXPECT_TRUE(bench.isOn("FixIssueButton"));
    EXPECT_EQ(bench.text("label_5"), "");
}

TEST(VerifyDisplay, BehindAnIgnoredEntryOneWithoutAnErrorKeepsTheCaptionOfTheName)
{
    CKvVerifyBench bench(kTwo);
    bench.host().setShowIgnored(true);
    bench.setIgnored(0, "anna");
    bench.violation(1).error = CKvStdsErrorPtr();
    bench.show();

    bench.click("NextIssueButton");

    EXPECT_FALSE(bench.widget<QCheckBox>("IgnoreViolationCheckBox").isChecked());
    EXPECT_EQ(bench.text("label_5"), "Ignored by:");
    EXPECT_EQ(bench.text("IgnoredByLoginNameLabel"), "");
}

TEST(VerifyDisplay, NamesFromTheDrawingAreNoMarkup)
{
    CKvVerifyBench bench(kTwo);
    bench.violation(0).error->setObjectName(CKvString("<b>WALLS</b>"));
    bench.host().setShowIgnored(true);
    bench.setIgnored(0, "<img src=x>");

    bench.show();

    for (const char *name :
         { "ObjectTypeLabel", "ObjectNameLabel", "ProblemDescLabel", "IgnoredByLoginNameLabel" }) {
        EXPECT_EQ(bench.widget<QLabel>(name).textFormat(), Qt::PlainText) << name;
    }
    EXPECT_EQ(bench.shown(), "<b>WALLS</b>");
}

TEST(VerifyDisplay, TooltipsTellWhatDoesNotFitIntoTheCells)
{
    CKvVerifyBench bench(kTwo);

    bench.show();

    const QTableWidget &fixes = bench.table("ReplaceWithTableWidget");
    EXPECT_EQ(fixes.item(1, 1)->toolTip(), QStringLiteral("OTHER"));
    EXPECT_EQ(fixes.item(1, 2)->toolTip(),
              QDir::toNativeSeparators(QStringLiteral("/std/second.dxf")));
    EXPECT_EQ(bench.table("PreviewChangesTableWidget").item(0, 0)->toolTip(),
              QStringLiteral("Name"));
}

TEST(VerifyDisplay, CandidatesBeginAtTheTopAgainWhereNoneIsRecommended)
{
    QStringList many;
    for (int i = 0; i < 50; ++i) {
        many.append(QString::number(i));
    }
    CKvVerifyBench bench(kTwo);
    bench.setCandidates(0, many, 40);
    bench.setCandidates(1, many, -1);
    bench.show();

    const bool isScrolled = bench.table("ReplaceWithTableWidget").rowAt(0) > 0;
    bench.click("NextIssueButton");

    EXPECT_TRUE(isScrolled);
    EXPECT_EQ(bench.table("ReplaceWithTableWidget").rowAt(0), 0);
}

TEST(VerifyDisplay, NamesOfAnyLengthLeaveTheDialogAsWideAsItIs)
{
    const QString longName(255, QLatin1Char('W'));
    CKvVerifyBench bench({ longName });
    bench.host().setShowIgnored(true);
    bench.setIgnored(0, longName.toLatin1().constData());

    bench.show();

    EXPECT_LT(bench.dialog().width(), 400);
}

TEST(VerifyDisplay, TheWholeNameIsInTheTooltip)
{
    CKvVerifyBench bench({ QStringLiteral("A") });
    bench.show();

    const QString shown = bench.widget<QLabel>("ObjectNameLabel").toolTip();
    bench.click("NextIssueButton");

    EXPECT_EQ(shown, QStringLiteral("A"));
    EXPECT_EQ(bench.widget<QLabel>("ObjectNameLabel").toolTip(), QString());
}

TEST(VerifyDisplay, TheLabelsOfTheTablesNameThemForScreenReaders)
{
    CKvVerifyBench bench(kTwo);

    EXPECT_EQ(bench.widget<QLabel>("label_2").buddy(), &bench.table("ReplaceWithTableWidget"));
    EXPECT_EQ(bench.widget<QLabel>("label_3").buddy(), &bench.table("PreviewChangesTableWidget"));
}

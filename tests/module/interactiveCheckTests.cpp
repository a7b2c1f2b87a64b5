// SPDX-License-Identifier: MIT
#include "CKvCommandCancelled.h"
#include "CKvInteractiveTest.h"
#include "CKvNamedCommand.h"

#include <QDialog>
#include <QFile>
#include <QTimer>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

using InteractiveCheck = CKvInteractiveTest;

constexpr char kMessage[] = "CKvStandardViolationMessage";
constexpr char kDialog[] = "CKvVerifyStandards";
constexpr char kSummary[] = "CKvVerfiyCompleteMessage";

/// A command that is on the stack while it lives.
class CKvStackedCommand
{
public:
    CKvStackedCommand(CKvSession &session, const char *name, std::function<void()> work)
        : m_session(session)
        , m_command(name, std::move(work))
    {
        m_session.commands().addCommand(&m_command);
    }
    ~CKvStackedCommand() { m_session.commands().removeCommand(&m_command); }
    CKvStackedCommand(const CKvStackedCommand &) = delete;
    CKvStackedCommand &operator=(const CKvStackedCommand &) = delete;

private:
    CKvSession &m_session;
    CKvNamedCommand m_command;
};

} // namespace

TEST_F(InteractiveCheck, GoesFromTheEditToTheDialogWithJustItsViolations)
{
    runVerification();
    std::vector<std::string> seen;
    user.answer(QLatin1String(kDialog), [&](QDialog &dialog) {
        EXPECT_TRUE(GetKvStandardManager()->isInterStateCheck());
        seen = { labelText(dialog, "ObjectTypeLabel"), labelText(dialog, "ObjectNameLabel") };
        click(dialog, "NextIssueButton");
        press(dialog, QDialogButtonBox::Close);
    });
    std::string total;
    user.answer(QLatin1String(kSummary), [&](QDialog &dialog) {
        total = labelText(dialog, "num_violations");
        dialog.reject();
    });

    recolor();
    const bool isPostedAtTheEnd = hasPosted();
    const std::vector<std::string> shownAtTheEnd = shown();
    runPosted();

    EXPECT_TRUE(isPostedAtTheEnd);
    EXPECT_THAT(shownAtTheEnd, IsEmpty());
    EXPECT_THAT(
        log.events,
        ElementsAre(
            "start _RECOLOR", "end _RECOLOR", "start _INTERSTATEVERIFY", "end _INTERSTATEVERIFY"));
    EXPECT_THAT(seen, ElementsAre("Layer:", "WALLS"));
    EXPECT_EQ(total, "1");
    EXPECT_FALSE(GetKvStandardManager()->isInterStateCheck());
    // The queue is empty: the timer goes on and posts nothing.
    letTick(2);
    EXPECT_FALSE(hasPosted());
}

TEST_F(InteractiveCheck, AnObjectThatIsKeptStaysAndIsToldAgainWhenItChangesAgain)
{
    keepObject();

    recolor();
    runPosted();
    letTick(2);

    EXPECT_THAT(shown(), ElementsAre(kMessage));
    EXPECT_EQ(colorOfWalls(), 2);

    recolor();
    runPosted();

    EXPECT_THAT(shown(), ElementsAre(kMessage, kMessage));
}

TEST_F(InteractiveCheck, ARepairSetsOffNoNewCheck)
{
    runVerification();
    user.answer(QLatin1String(kDialog), [](QDialog &dialog) {
        click(dialog, "FixIssueButton");
        press(dialog, QDialogButtonBox::Close);
    });
    user.answer(QLatin1String(kSummary), [](QDialog &dialog) { dialog.reject(); });

    recolor();
    runPosted();
    letTick(3);

    EXPECT_EQ(colorOfWalls(), 1);
    EXPECT_THAT(shown(), ElementsAre(kMessage, kDialog, kSummary));
    EXPECT_FALSE(hasPosted());
}

TEST_F(InteractiveCheck, AnEditThatKeepsTheStandardIsNotTold)
{
    keepObject();
    // Through all seven colours, the last of which is red again.
    for (int i = 0; i < 7; ++i) {
        recolor();
        runPosted();
    }

    EXPECT_EQ(colorOfWalls(), 1);
    EXPECT_THAT(shown(), testing::SizeIs(6));
}

TEST_F(InteractiveCheck, WithNotificationOffTheCheckRunsAndTellsNothing)
{
    session->settings().setStandardsViolation(0);

    recolor();
    runPosted();

    EXPECT_THAT(log.events, testing::Contains("end _INTERSTATEVERIFY"));
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(InteractiveCheck, AnEditWithoutACommandIsSeenByTheTimer)
{
    keepObject();
    recolorBare();
    EXPECT_FALSE(hasPosted());

    letTick(1);
    runPosted();

    EXPECT_THAT(shown(), ElementsAre(kMessage));
}

TEST_F(InteractiveCheck, WhileADialogIsOpenAnEditWaits)
{
    keepObject();
    QDialog dialog;
    int ticks = 0;
    QMetaObject::Connection watching;
    user.answer(QStringLiteral("QDialog"), [&](QDialog &) {
        recolorBare();
        watching = QObject::connect(managerTimer(), &QTimer::timeout, &dialog, [&] {
            EXPECT_FALSE(hasPosted());
            if (++ticks == 3) {
                dialog.reject();
            }
        });
    });

    dialog.exec();
    QObject::disconnect(watching);

    EXPECT_EQ(ticks, 3);
    letTick(1);
    EXPECT_TRUE(hasPosted());
    runPosted();
    EXPECT_THAT(shown(), ElementsAre("QDialog", kMessage));
}

TEST_F(InteractiveCheck, TheCommandsOfAScriptAreCheckedWhenTheScriptEnds)
{
    keepObject();
    bool isPostedInTheScript = true;
    const CKvStackedCommand script(*session, "_LOADSCRIPT", [&] {
        session->commandLine().runScript({ QStringLiteral("RECOLOR"), QStringLiteral("RECOLOR") });
        isPostedInTheScript = hasPosted();
    });

    session->commandLine().run(QStringLiteral("LOADSCRIPT"));
    const bool isPostedBehindTheScript = hasPosted();
    runPosted();

    EXPECT_FALSE(isPostedInTheScript);
    EXPECT_TRUE(isPostedBehindTheScript);
    EXPECT_THAT(shown(), ElementsAre(kMessage));
}

TEST_F(InteractiveCheck, ACommandInsideAnotherIsCheckedWhenTheOuterOneEnds)
{
    keepObject();
    bool isPostedInside = true;
    const CKvStackedCommand outer(*session, "_OUTER", [&] {
        recolor();
        isPostedInside = hasPosted();
    });

    session->commandLine().run(QStringLiteral("OUTER"));
    const bool isPostedBehind = hasPosted();
    runPosted();

    EXPECT_FALSE(isPostedInside);
    EXPECT_TRUE(isPostedBehind);
    EXPECT_THAT(shown(), ElementsAre(kMessage));
}

TEST_F(InteractiveCheck, ACommandThatIsBrokenOffIsNotChecked)
{
    const CKvStackedCommand broken(*session, "_BROKEN", [&] {
        recolorBare();
        throw CKvCommandCancelled();
    });

    session->commandLine().run(QStringLiteral("BROKEN"));
    letTick(2);

    EXPECT_EQ(colorOfWalls(), 2);
    EXPECT_FALSE(hasPosted());
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(InteractiveCheck, ACommandThatFailsLeavesItsChangesToTheTimer)
{
    keepObject();
    const CKvStackedCommand failing(*session, "_FAILING", [&] {
        recolorBare();
        throw OdError(OdResult::kUnspecified);
    });

    EXPECT_THROW(session->commandLine().run(QStringLiteral("FAILING")), OdError);
    EXPECT_FALSE(hasPosted());
    letTick(1);
    runPosted();

    EXPECT_THAT(shown(), ElementsAre(kMessage));
}

TEST_F(InteractiveCheck, SavingStopsTheTimerAndTheNextChangeStartsItAgain)
{
    keepObject();
    const CKvStackedCommand save(*session, "_QSAVE", [&] { recolorBare(); });

    session->commandLine().run(QStringLiteral("QSAVE"));

    EXPECT_FALSE(hasPosted());
    EXPECT_FALSE(managerTimer()->isActive());

    recolor();

    EXPECT_TRUE(managerTimer()->isActive());
    runPosted();
    EXPECT_THAT(shown(), ElementsAre(kMessage));
}

TEST_F(InteractiveCheck, VerifyingTheWholeDrawingPostsNoCheckOfItsRepairs)
{
    user.answer(QLatin1String(kDialog), [](QDialog &dialog) {
        click(dialog, "NextIssueButton");
        press(dialog, QDialogButtonBox::Close);
    });
    user.answer(QLatin1String(kSummary), [](QDialog &dialog) { dialog.reject(); });
    recolorBare();

    session->commandLine().run(QStringLiteral("VERIFYSTANDARDS"));

    EXPECT_FALSE(hasPosted());
    EXPECT_FALSE(managerTimer()->isActive());
    EXPECT_THAT(shown(), testing::Contains(kDialog));
    EXPECT_THAT(shown(), testing::Not(testing::Contains(kMessage)));
}

TEST_F(InteractiveCheck, AFileThatGoesBetweenTwoCommandsIsMissedByTheSecond)
{
    user.answer(QLatin1String(kDialog),
                [](QDialog &dialog) { press(dialog, QDialogButtonBox::Close); });
    user.answer(QStringLiteral("CKvMissingStandardsFileDlg"),
                [](QDialog &dialog) { press(dialog, QDialogButtonBox::Cancel); });
    session->commandLine().run(QStringLiteral("VERIFYSTANDARDS"));
    QFile::remove(folder.filePath(QStringLiteral("office.dws")));

    session->commandLine().run(QStringLiteral("VERIFYSTANDARDS"));

    EXPECT_THAT(shown(), ElementsAre(kDialog, "CKvMissingStandardsFileDlg"));
}

TEST_F(InteractiveCheck, AnExpressionPostsTwiceAndTheSecondCheckIsOfTheWholeDrawing)
{
    // The end of the command posts, and so does that of the expression. The second check finds the
    // queue empty, which means everything: it tells of DOORS as well.
    runVerification();
    std::vector<std::string> totals;
    user.answer(QLatin1String(kDialog), [&](QDialog &dialog) {
        const std::size_t before = totals.size();
        while (totals.size() == before) {
            click(dialog, "NextIssueButton");
        }
        press(dialog, QDialogButtonBox::Close);
    });
    user.answer(QLatin1String(kSummary), [&](QDialog &dialog) {
        totals.push_back(labelText(dialog, "num_violations"));
        dialog.reject();
    });

    session->commandLine().enter(QStringLiteral("(command \"RECOLOR\")"));
    runPosted();

    EXPECT_THAT(totals, ElementsAre("1", "2"));
}

TEST_F(InteractiveCheck, ADrawingWhoseStandardsAreGoneIsLetGo)
{
    QFile::remove(folder.filePath(QStringLiteral("office.dws")));
    // The check that this edit posts finds no standards.
    recolor();
    runPosted();

    recolor();

    EXPECT_FALSE(hasPosted());
    EXPECT_THAT(shown(), IsEmpty());
}

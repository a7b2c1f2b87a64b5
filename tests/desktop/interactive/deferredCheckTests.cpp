// SPDX-License-Identifier: MIT
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "CKvStdsManager.h"
#include "CKvWatchedDeskTest.h"

#include <QAbstractButton>
#include <QFile>
#include <QMessageBox>
#include <QTimer>

#include <utility>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// When the desktop lets the check of what has changed begin.
class DeferredCheck : public CKvWatchedDeskTest
{
protected:
    /// In a dialog that stands in the way the user does this before it closes.
    void inDialog(const std::function<void()> &action)
    {
        QDialog dialog;
        m_user.answer(text("QDialog"), [action](QDialog &shown) {
            action();
            shown.reject();
        });
        dialog.exec();
    }
    /// Saves over a file that somebody has changed; what the action does comes in between.
    void saveAfter(const std::function<void()> &action)
    {
        write("plan.dxf", contentOf(path("plan.dxf")) + "\n");
        m_user.answer(text("QMessageBox"), [action](QDialog &box) {
            action();
            static_cast<QMessageBox &>(box).button(QMessageBox::Yes)->click();
        });
        enter(QString(text("SAVE ") + path("plan.dxf")));
    }
};

} // namespace

TEST_F(DeferredCheck, AChangeWhileADialogIsOpenWaitsForTheFirstTickBehindIt)
{
    verifyAndPassOver();

    inDialog([this] {
        recolor(5);
        letTick(3);
        m_log->note("in the dialog");
    });
    m_log->note("behind the dialog");
    letTick(1);
    runPosted();

    EXPECT_EQ(m_log->events()[2], "in the dialog; timer runs");
    EXPECT_EQ(m_log->events()[3], "behind the dialog; timer runs");
    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS"));
}

TEST_F(DeferredCheck, AChangeInADialogBehindWhichTheTimerWasStoppedIsNotPosted)
{
    inDialog([this] {
        recolor(5);
        letTick(1);
        managerTimer()->stop();
    });

    EXPECT_FALSE(managerTimer()->isActive());
    EXPECT_FALSE(hasPosted());
}

TEST_F(DeferredCheck, RepairsOfAVerificationArePostedNeitherInItNorBehindIt)
{
    enter("LAYER COLOR WALLS 5");
    keepObject();
    runPosted();
    m_log->clear();
    verifyAndFix();
    m_desk->addCommand("LOOK", [](CKvDesktop &) { return true; });

    enter("VERIFYSTANDARDS");

    EXPECT_EQ(colorOfWalls(), 1);
    EXPECT_GE(m_log->count("modified WALLS"), 1);
    EXPECT_EQ(m_log->events().back(), "end _VERIFYSTANDARDS");
    EXPECT_FALSE(managerTimer()->isActive());
    EXPECT_EQ(told(), 0);
}

TEST_F(DeferredCheck, WhileAVerificationIsOpenItsRepairsAreNotPosted)
{
    enter("LAYER COLOR WALLS 5");
    keepObject();
    runPosted();
    bool isPostedInside = true;
    m_user.answer(text("CKvVerifyStandards"), [&](QDialog &dialog) {
        click(dialog, "FixIssueButton");
        letTick(3);
        isPostedInside = hasPosted();
        press(dialog, QDialogButtonBox::Close);
    });
    m_user.answer(text("CKvVerfiyCompleteMessage"), [](QDialog &dialog) { dialog.reject(); });

    enter("VERIFYSTANDARDS");

    EXPECT_EQ(colorOfWalls(), 1);
    EXPECT_FALSE(isPostedInside);
    EXPECT_FALSE(managerTimer()->isActive());
}

TEST_F(DeferredCheck, WhatChangesWhileSavingIsPostedByTheNextCommandThatKeepsIt)
{
    verifyAndPassOver();

    saveAfter([this] { recolor(5); });
    const bool isPosted = hasPosted();
    const bool isRunning = managerTimer()->isActive();
    enter("INSERTBLOCK DOOR 7,8");
    runPosted();

    EXPECT_EQ(m_log->count("modified WALLS"), 1);
    EXPECT_FALSE(isPosted);
    EXPECT_FALSE(isRunning);
    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS"));
}

TEST_F(DeferredCheck, WhatChangesWhileSavingIsPostedAfterTheNextChange)
{
    verifyAndPassOver();

    saveAfter([this] { recolor(5); });
    EXPECT_FALSE(managerTimer()->isActive());
    recolor(5, "DOORS");
    letTick(1);
    runPosted();

    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS", "Layer: DOORS"));
}

TEST_F(DeferredCheck, TheOtherCommandsThatSaveAndSetStandardsStopTheTimerToo)
{
    m_user.answer(text("CKvStandardsSettingsDlg"), [](QDialog &dialog) { dialog.reject(); });
    m_user.answer(text("CKvStandardViolationMessage"), [](QDialog &dialog) { dialog.reject(); });
    for (const QString &command :
         { text("QSAVE"), QString(text("SAVEAS ") + path("plan.dxf")), text("DRAWINGSTANDARDS") }) {
        recolor(colorOfWalls() % 7 + 1);
        ASSERT_TRUE(managerTimer()->isActive());

        enter(command);

        EXPECT_FALSE(managerTimer()->isActive()) << command.toStdString();
        EXPECT_FALSE(hasPosted()) << command.toStdString();
    }
}

TEST_F(DeferredCheck, ATickThatIsDueAtTheEndOfACommandDoesNotPostWhatWaitsAlready)
{
    verifyAndPassOver();
    m_desk->addCommand("EDIT", [this](CKvDesktop &) {
        recolor(5);
        // As if the command took longer than the interval; the tick after that takes its time.
        QTimer *timer = managerTimer();
        const int interval = timer->interval();
        timer->setInterval(0);
        QObject::connect(timer, &QTimer::timeout, timer, [=] { timer->setInterval(interval); });
        return true;
    });

    enter("EDIT");
    runPosted();

    EXPECT_EQ(m_log->count("end _INTERSTATEVERIFY"), 1);
    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS"));
}

TEST_F(DeferredCheck, NoTickPostsWhileAScriptRuns)
{
    verifyAndPassOver();
    m_desk->addCommand("WAIT", [this](CKvDesktop &) {
        recolor(5);
        letTick(3);
        m_log->note("in the script");
        return true;
    });

    runScript("WAIT\n");
    runPosted();

    EXPECT_EQ(m_log->count("in the script"), 1);
    EXPECT_THAT(m_log->events(), testing::Contains("in the script; timer runs"));
    EXPECT_THAT(m_log->events(), testing::Contains("end _LOADSCRIPT; timer runs; check waits"));
    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS"));
}

TEST_F(DeferredCheck, NoTickPostsBetweenTwoCommandsOfAScript)
{
    bool isPostedBetween = true;
    // A word that is no command is told; no command runs meanwhile.
    QObject::connect(&session().commandLine(),
                     &CKvCommandLine::printed,
                     &m_desk->window(),
                     [&](const QString &) {
                         recolor(5);
                         letTick(3);
                         isPostedBetween = hasPosted();
                     });

    session().commandLine().runScript({ text("NONSENSE") });

    EXPECT_FALSE(isPostedBetween);
    letTick(1);
    EXPECT_TRUE(hasPosted());
    keepObject();
    runPosted();
    EXPECT_EQ(told(), 1);
}

TEST_F(DeferredCheck, WithTheVariableAtZeroTheCheckIsPostedAndTellsNothing)
{
    enter("SETVAR STANDARDSVIOLATION 0");

    enter("LAYER COLOR WALLS 5");
    const bool isPostedAtTheEnd = hasPosted();
    runPosted();
    letTick(2);

    EXPECT_TRUE(isPostedAtTheEnd);
    EXPECT_EQ(m_log->count("end _INTERSTATEVERIFY"), 1);
    EXPECT_THAT(m_user.shown(), IsEmpty());
    // The check has emptied the queue all the same.
    EXPECT_FALSE(hasPosted());
}

TEST_F(DeferredCheck, WithTheVariableAtTwoTheUserIsToldAsWithOne)
{
    keepObject();
    for (const char *value : { "2", "1" }) {
        m_log->clear();
        enter(QString(text("SETVAR STANDARDSVIOLATION ") + text(value)));
        enter("LAYER COLOR WALLS 5");
        runPosted();

        EXPECT_EQ(told(), 1) << value;
    }
}

TEST_F(DeferredCheck, ABusyDocumentIsCheckedOnceItIsFree)
{
    verifyAndPassOver();
    document().beginBusy();
    enter("LAYER COLOR WALLS 5");
    letTick(2);
    const bool isPostedWhileBusy = hasPosted();

    document().endBusy();
    letTick(1);
    runPosted();

    EXPECT_FALSE(isPostedWhileBusy);
    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS"));
}

TEST_F(DeferredCheck, SuspendedInputHoldsTheTimerBackAndNotTheEndOfACommand)
{
    keepObject();
    CKvHostCommandContext &context = *document().commandContext();
    context.setInputSuspended(true);
    recolor(5);
    letTick(2);
    EXPECT_FALSE(hasPosted());

    enter("LAYER COLOR WALLS 6");
    EXPECT_TRUE(hasPosted());
    runPosted();
    context.setInputSuspended(false);

    EXPECT_EQ(told(), 1);
}

TEST_F(DeferredCheck, TypedByHandTheCheckIsOneOfTheWholeDrawing)
{
    verifyAndPassOver();

    enter("INTERSTATEVERIFY");

    EXPECT_EQ(told(), 1);
    EXPECT_THAT(m_seen, ElementsAre("Layer: DOORS"));
    EXPECT_FALSE(GetKvStandardManager()->isInterStateCheck());
}

TEST_F(DeferredCheck, ADrawingWhoseStandardsAreGoneIsWatchedNoLonger)
{
    QFile::remove(path("office.dws"));
    enter("LAYER COLOR WALLS 5");
    runPosted();

    enter("LAYER COLOR WALLS 6");

    EXPECT_FALSE(hasPosted());
    EXPECT_THAT(m_user.shown(), IsEmpty());
}

TEST_F(DeferredCheck, WhatWasChangedInADrawingThatIsNoLongerActiveIsCheckedAllTheSame)
{
    keepObject();
    CKvHostDocument &plan = document();
    CKvDrawingBuilder other;
    other.withDefaults().standardsFiles({ path("office.dws") });
    other.saveTo(path("other.dxf"));
    recolor(5);
    session().documentManager()->open(path("other.dxf"));
    ASSERT_NE(m_desk->activeDocument(), &plan);

    letTick(1);
    runPosted();

    EXPECT_EQ(told(), 1);
}

TEST_F(DeferredCheck, WhatWasChangedInADrawingThatClosesWithTheWindowIsForgotten)
{
    keepObject();
    enter("LAYER COLOR DOORS 4");
    runPosted();
    CKvDrawingBuilder other;
    other.withDefaults().layer("WALLS").color(3);
    other.standardsFiles({ path("office.dws") });
    other.saveTo(path("other.dxf"));
    enter(QString(text("OPEN ") + path("other.dxf")));
    // Nothing else holds the drawing then.
    CKvStdsPluginList plugins;
    GetKvStandardManager()->plugins(plugins);
    for (const CKvStdsPluginsPtr &plugin : plugins) {
        plugin->setEnabled(plugin->objectFilter().front() == CKvString("LAYER"));
    }
    // Behind a verification its repairs still stand in the queue.
    verifyAndFix();
    enter("VERIFYSTANDARDS");
    bool isFirst = true;
    m_user.answer(text("QMessageBox"), [&](QDialog &box) {
        const auto answer =
            std::exchange(isFirst, false) ? QMessageBox::Discard : QMessageBox::Cancel;
        static_cast<QMessageBox &>(box).button(answer)->click();
    });
    m_desk->window().close();
    ASSERT_EQ(session().documentManager()->documents().size(), 1U);
    m_seen.clear();

    enter("INSERTBLOCK DOOR 7,8");
    runPosted();

    EXPECT_THAT(m_seen, IsEmpty());
}

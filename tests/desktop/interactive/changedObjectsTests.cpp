// SPDX-License-Identifier: MIT
#include "CKvHostDocument.h"
#include "CKvStandardsSettingsDlg.h"
#include "CKvWatchedDeskTest.h"
#include "OdDbSymbolTableRecord.h"
#include "OdError.h"

#include <QFile>

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// What the commands of the desktop bring into the queue of changed objects, and what drops it.
class ChangedObjects : public CKvWatchedDeskTest
{
protected:
    void addStandardsFile(const char *name)
    {
        CKvDrawingBuilder().saveTo(path(name));
        m_user.answer(text("CKvStandardsSettingsDlg"), [this, name](QDialog &dialog) {
            static_cast<CKvStandardsSettingsDlg &>(dialog).addFile(path(name));
            dialog.accept();
        });
    }
    void renameViewport()
    {
        const OdDbObjectId id =
            document().GetKvDatabase()->getOdDbObjectId(OdDbHandle(kViewportHandle));
        const OdDbSymbolTableRecordPtr active(id.openObject(OdDb::kForWrite));
        active->setName(OdString("OTHER"));
    }
};

} // namespace

TEST_F(ChangedObjects, AnObjectThatOneCommandChangesTwiceIsToldOnce)
{
    verifyAndPassOver();
    for (const char *command : { "LAYER COLOR WALLS 3", "LAYER COLOR WALLS 4" }) {
        enter(command);
        runPosted();
    }
    recolor(5);
    enter("REGEN");
    m_log->clear();
    m_seen.clear();

    enter("UNDO 2");
    runPosted();

    EXPECT_EQ(m_log->count("modified WALLS"), 2);
    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS"));
}

TEST_F(ChangedObjects, AListOfFilesThatIsTakenBackRestartsTheTimerAndIsNotChecked)
{
    addStandardsFile("more.dws");
    enter("DWGSTANDARDS");
    EXPECT_FALSE(hasPosted());
    managerTimer()->stop();
    m_log->clear();

    enter("UNDO");

    EXPECT_EQ(bytes(), contentOf(path("plan.dxf")));
    EXPECT_THAT(m_log->events(), Contains("modified DICTIONARY; timer runs"));
    EXPECT_FALSE(hasPosted());
    letTick(2);
    EXPECT_FALSE(hasPosted());
}

TEST_F(ChangedObjects, AChangedViewportNeitherRestartsTheTimerNorIsItChecked)
{
    m_desk->addCommand("PAN", [this](CKvDesktop &) {
        renameViewport();
        return true;
    });

    enter("PAN");

    EXPECT_THAT(m_log->events(),
                ElementsAre("start _PAN", "opened *ACTIVE", "modified OTHER", "end _PAN"));
}

TEST_F(ChangedObjects, ANewRecordIsNotedWhenItComesAndNotByItsFirstClosing)
{
    verifyAndPassOver();

    enter("LAYER NEW ROOF");
    const bool isPostedAtTheEnd = hasPosted();
    runPosted();

    EXPECT_TRUE(isPostedAtTheEnd);
    EXPECT_THAT(m_log->events(), Contains("appended ROOF"));
    EXPECT_THAT(m_seen, ElementsAre("Layer: ROOF"));
}

TEST_F(ChangedObjects, ADimensionStyleThatClosesAsItWasRestartsTheTimerAndIsNotChecked)
{
    enter("DIMSTYLE VARIABLE OFFICE DIMTXT 2.5");

    EXPECT_THAT(m_log->events(),
                ElementsAre("start _DIMSTYLE",
                            "opened OFFICE",
                            "modified OFFICE; timer runs",
                            "end _DIMSTYLE; timer runs"));
    letTick(2);
    EXPECT_FALSE(hasPosted());
}

TEST_F(ChangedObjects, AnErasedRecordIsNotTold)
{
    enter("LAYER DELETE DOORS");
    runPosted();

    EXPECT_EQ(m_log->count("erased DOORS"), 1);
    EXPECT_EQ(m_log->count("modified DOORS"), 0);
    EXPECT_THAT(m_user.shown(), IsEmpty());
}

TEST_F(ChangedObjects,
       ACommandInsideAnotherIsCheckedWhenTheOuterOneEndsAlsoWhenTheTimerTicksBetween)
{
    verifyAndPassOver();
    m_desk->addCommand("OUTER", [this](CKvDesktop &desktop) {
        desktop.commandLine().enter(text("LAYER COLOR WALLS 5"));
        letTick(3);
        m_log->note("still inside");
        return true;
    });

    enter("OUTER");
    runPosted();

    EXPECT_THAT(m_log->events(), Contains("end _LAYER; timer runs"));
    EXPECT_THAT(m_log->events(), Contains("still inside; timer runs"));
    EXPECT_THAT(m_log->events(), Contains("end _OUTER; timer runs; check waits"));
    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS"));
}

TEST_F(ChangedObjects, WhatIsBroughtAgainIsSeenByTheTimer)
{
    verifyAndPassOver();
    for (const char *redo : { "REDO", "REDON 1" }) {
        enter("LAYER COLOR WALLS 5");
        runPosted();
        enter("UNDO");
        runPosted();
        m_seen.clear();

        enter(redo);
        const bool isPostedAtTheEnd = hasPosted();
        letTick(1);
        runPosted();
        enter("UNDO");
        runPosted();

        EXPECT_FALSE(isPostedAtTheEnd) << redo;
        EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS")) << redo;
    }
}

TEST_F(ChangedObjects, BringingAgainWithoutUsableStandardsStopsTheTimer)
{
    keepObject();
    enter("LAYER COLOR WALLS 5");
    runPosted();
    enter("UNDO");
    // The check that this posts finds no standards.
    QFile::remove(path("office.dws"));
    runPosted();
    const bool wasRunning = managerTimer()->isActive();

    enter("REDO");

    EXPECT_TRUE(wasRunning);
    EXPECT_FALSE(managerTimer()->isActive());
    EXPECT_FALSE(hasPosted());
    EXPECT_EQ(told(), 1);
}

TEST_F(ChangedObjects, AScriptIsCheckedAtItsEnd)
{
    verifyAndPassOver();

    runScript("LAYER COLOR WALLS 4\nLAYER COLOR WALLS 5\n");
    runPosted();

    EXPECT_EQ(m_log->count("end _LAYER"), 2);
    EXPECT_THAT(m_log->events(), testing::Not(Contains("end _LAYER; timer runs; check waits")));
    EXPECT_THAT(m_log->events(), Contains("end _LOADSCRIPT; timer runs; check waits"));
    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS"));
}

TEST_F(ChangedObjects, ACommandThatIsBrokenOffDropsWhatItHasChanged)
{
    m_desk->addCommand("EDIT", [this](CKvDesktop &desktop) {
        recolor(5);
        desktop.commandLine().ask(text("Next colour:"));
        return true;
    });
    whenAsked([this] {
        // The command waits in an event loop of its own.
        letTick(2);
        m_log->note("asked");
        pressEscape();
    });

    enter("EDIT");
    letTick(2);

    EXPECT_THAT(m_log->events(), Contains("asked; timer runs"));
    EXPECT_EQ(m_log->count("cancelled _EDIT"), 1);
    EXPECT_EQ(colorOfWalls(), 5);
    EXPECT_FALSE(hasPosted());
    EXPECT_THAT(m_user.shown(), IsEmpty());
}

TEST_F(ChangedObjects, ACommandThatFailsLeavesWhatItHasChangedToTheTimer)
{
    verifyAndPassOver();
    m_desk->addCommand("EDIT", [this](CKvDesktop &) {
        recolor(5);
        return false;
    });

    enter("EDIT");
    const bool isPostedAtTheEnd = hasPosted();
    letTick(1);
    runPosted();

    EXPECT_EQ(m_log->count("failed _EDIT"), 1);
    EXPECT_FALSE(isPostedAtTheEnd);
    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS"));
}

TEST_F(ChangedObjects, AnInsertionKeepsWhatWasNotedBeforeIt)
{
    verifyAndPassOver();
    recolor(5);

    enter("INSERTBLOCK DOOR 7,8");
    runPosted();

    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS"));
}

TEST_F(ChangedObjects, AnyOtherCommandDropsWhatWasNotedBeforeIt)
{
    recolor(5);

    enter("REGEN");
    letTick(2);

    EXPECT_THAT(m_log->events(),
                ElementsAre("opened WALLS",
                            "modified WALLS; timer runs",
                            "start _REGEN; timer runs",
                            "end _REGEN; timer runs"));
    EXPECT_FALSE(hasPosted());
}

// SPDX-License-Identifier: MIT
#include "CKvWatchedDeskTest.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

using RoadSteps = CKvWatchedDeskTest;

} // namespace

TEST_F(RoadSteps, AnEditIsNotedCheckedToldAndVerifiedOneStepAfterTheOther)
{
    verifyAndPassOver();
    ASSERT_FALSE(managerTimer()->isActive());

    enter("LAYER COLOR WALLS 5");
    m_log->note("idle");
    runPosted();
    letTick(3);
    m_log->note("idle again");

    EXPECT_THAT(m_log->events(),
                ElementsAre(
                    // The change is noted and the timer restarted when the layer closes.
                    "start _LAYER",
                    "opened WALLS",
                    "modified WALLS; timer runs",
                    // The end of the command posts the check and runs nothing.
                    "end _LAYER; timer runs; check waits",
                    "idle; timer runs; check waits",
                    // Were the queue lost at the start, the check would be one of the whole drawing
                    // and tell of DOORS too.
                    "start _INTERSTATEVERIFY; timer runs",
                    "message; timer runs",
                    "shown Layer: WALLS; timer runs",
                    "summary 1; timer runs",
                    "end _INTERSTATEVERIFY; timer runs",
                    // The timer ticks on over an empty queue.
                    "idle again; timer runs"));
}

TEST_F(RoadSteps, AnEditThatKeepsTheStandardComesAsFarAsTheCheck)
{
    enter("LAYER COLOR WALLS 5");
    m_user.answer(text("CKvStandardViolationMessage"), [](QDialog &dialog) { dialog.reject(); });
    runPosted();
    m_log->clear();

    enter("LAYER COLOR WALLS 1");
    runPosted();

    EXPECT_EQ(m_log->count("end _INTERSTATEVERIFY"), 1);
    EXPECT_EQ(m_user.shown().size(), 1);
}

TEST_F(RoadSteps, EachCategoryIsCheckedByTheCommandThatChangesIt)
{
    verifyAndPassOver();
    const std::vector<std::pair<const char *, const char *>> edits = {
        { "LAYER NEW ROOF", "Layer: ROOF" },
        { "LINETYPE LOAD DASHED", "LineStyle: DASHED" },
        { "STYLE NEW NOTES", "TextStyle: NOTES" },
        { "DIMSTYLE NEW FINE", "DimensionStyle: FINE" },
        { "DIMSTYLE VARIABLE OFFICE DIMTXT 3.5", "DimensionStyle: OFFICE" },
        { "STYLE WIDTH Standard 0.8", "TextStyle: Standard" },
        { "RENAME LAYER WALLS A-WALL", "Layer: A-WALL" },
    };
    for (const auto &[command, violation] : edits) {
        m_seen.clear();

        enter(command);
        runPosted();

        EXPECT_THAT(m_seen, ElementsAre(violation)) << command;
    }
}

TEST_F(RoadSteps, WhatIsDrawnBreaksNoStandardAndIsNotTold)
{
    for (const char *command :
         { "LINE 0,0 1,1 \"\"", "CIRCLE 0,0 1", "TEXT 0,0 2.5 words", "ERASE LAST" }) {
        enter(command);
        runPosted();
    }

    EXPECT_THAT(m_user.shown(), IsEmpty());
}

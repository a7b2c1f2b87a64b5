// SPDX-License-Identifier: MIT
#include "CKvWatchedDeskTest.h"
#include "OdError.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// What expressions do to the queue of changed objects.
class Expressions : public CKvWatchedDeskTest
{
protected:
    Expressions()
    {
        m_desk->addCommand("EDIT", [this](CKvDesktop &) {
            recolor(5);
            return false;
        });
        m_desk->addCommand("BREAK", [this](CKvDesktop &) -> bool {
            recolor(5);
            throw OdError(OdResult::kUnspecified);
        });
    }
};

} // namespace

TEST_F(Expressions, TheStartDropsWhatWasNotedBefore)
{
    recolor(5);

    enter("(progn)");
    letTick(2);

    EXPECT_THAT(m_log->events(), ElementsAre("opened WALLS", "modified WALLS; timer runs"));
    EXPECT_FALSE(hasPosted());
}

TEST_F(Expressions, TheEndPostsTheCheckOfWhatTheCommandsInsideHaveLeft)
{
    verifyAndPassOver();

    // The command fails, so that it posts nothing itself.
    enter("(command \"EDIT\")");
    const bool isPostedAtTheEnd = hasPosted();
    runPosted();

    EXPECT_EQ(m_log->count("failed _EDIT"), 1);
    EXPECT_TRUE(isPostedAtTheEnd);
    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS"));
}

TEST_F(Expressions, OneThatBreaksDropsWhatItHasChanged)
{
    EXPECT_THROW(enter("(command \"BREAK\")"), OdError);
    letTick(2);

    EXPECT_EQ(colorOfWalls(), 5);
    EXPECT_FALSE(hasPosted());
    EXPECT_THAT(m_user.shown(), IsEmpty());
}

TEST_F(Expressions, OneThatTheUserBreaksOffDropsWhatItHasChanged)
{
    whenAsked([this] {
        recolor(5);
        pressEscape();
    });

    enter("(command \"LAYER\" \"COLOR\" \"DOORS\")");
    letTick(2);

    EXPECT_EQ(m_log->count("cancelled _LAYER"), 1);
    EXPECT_EQ(colorOfWalls(), 5);
    EXPECT_FALSE(hasPosted());
}

TEST_F(Expressions, ACommandInsideThatEndsIsPostedTwiceAndTheSecondCheckIsOfTheWholeDrawing)
{
    verifyAndPassOver();

    enter("(command \"LAYER\" \"COLOR\" \"WALLS\" \"5\")");
    runPosted();

    EXPECT_EQ(m_log->count("end _INTERSTATEVERIFY"), 2);
    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS", "Layer: WALLS", "Layer: DOORS"));
}

// SPDX-License-Identifier: MIT
#include "CKvManagerTest.h"
#include "activeDocument.h"

#include <QDialog>
#include <QEventLoop>
#include <QTimer>

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr char kPost[] = "post 5005=_INTERSTATEVERIFY 5000";

struct Timer : CKvManagerTest {
    Timer()
    {
        openTracked();
        document->changeLayer("WALLS", 3);
        host.forgetCalls();
    }
    /// One tick, without waiting for it.
    std::vector<std::string> tick()
    {
        host.forgetCalls();
        QMetaObject::invokeMethod(manager.get(), "timerTimeout", Qt::DirectConnection);
        return host.calls();
    }
    QTimer &timer() const { return *manager->findChild<QTimer *>(); }
    /// Runs the event loop until the timer has ticked this often.
    void letTick(int times)
    {
        QEventLoop loop;
        const auto connection = QObject::connect(&timer(), &QTimer::timeout, &loop, [&] {
            if (--times == 0) {
                loop.quit();
            }
        });
        loop.exec();
        QObject::disconnect(connection);
    }
};

} // namespace

TEST_F(Timer, AnIdleHostGetsThePost)
{
    EXPECT_THAT(tick(), ElementsAre(kPost));
    EXPECT_FALSE(manager->changedObjects().empty());
    EXPECT_TRUE(manager->isTimerActive());
}

TEST_F(Timer, WithoutADocumentNothingIsPosted)
{
    setActiveDocument(nullptr);

    EXPECT_THAT(tick(), IsEmpty());

    setActiveDocument(&*document);
}

TEST_F(Timer, WhileACommandRunsNothingIsPosted)
{
    document->commandDepth = 1;

    EXPECT_THAT(tick(), IsEmpty());
}

TEST_F(Timer, WhileTheDocumentIsBusyNothingIsPosted)
{
    document->isBusy = true;

    EXPECT_THAT(tick(), IsEmpty());
}

TEST_F(Timer, WhileInputIsSuspendedNothingIsPosted)
{
    document->isSuspended = true;

    EXPECT_THAT(tick(), IsEmpty());
}

TEST_F(Timer, WhileAScriptRunsNothingIsPosted)
{
    document->isScript = true;

    EXPECT_THAT(tick(), IsEmpty());
}

TEST_F(Timer, WithoutAManagerNothingIsPosted)
{
    SetKvStandardManager(nullptr);

    EXPECT_THAT(tick(), IsEmpty());
}

TEST_F(Timer, WithAnEmptyQueueNothingIsPosted)
{
    manager->clearChangedObjects();

    EXPECT_THAT(tick(), IsEmpty());
}

TEST_F(Timer, AnObstacleThatGoesLetsTheNextTickPost)
{
    document->isBusy = true;
    tick();
    document->isBusy = false;

    EXPECT_THAT(tick(), ElementsAre(kPost));
}

TEST_F(Timer, WhileADialogIsOpenNothingIsPostedAndTheNextTickBehindItPosts)
{
    QDialog dialog;
    int ticks = 0;
    QObject::connect(&timer(), &QTimer::timeout, &dialog, [&] {
        if (++ticks == 3) {
            dialog.reject();
        }
    });

    dialog.exec();

    EXPECT_EQ(ticks, 3);
    EXPECT_THAT(host.calls(), IsEmpty());

    letTick(1);

    EXPECT_THAT(host.calls(), ElementsAre(kPost));
}

TEST_F(Timer, TicksOnAndPostsAgainWhileNobodyEmptiesTheQueue)
{
    letTick(3);

    EXPECT_THAT(host.calls(), ElementsAre(kPost, kPost, kPost));
    EXPECT_TRUE(manager->isTimerActive());
}

TEST_F(Timer, OnceStoppedItPostsNothingUntilTheNextChange)
{
    manager->stopTimer();

    EXPECT_FALSE(timer().isActive());

    document->changeLayer("WALLS", 4);
    letTick(1);

    EXPECT_THAT(host.calls(), ElementsAre(kPost));
}

TEST_F(Timer, CountsAnewFromEachChange)
{
    timer().setTimerType(Qt::PreciseTimer);
    timer().start(100000);
    int left = timer().remainingTime();
    while (left > 99990) {
        left = timer().remainingTime();
    }

    document->changeLayer("WALLS", 4);

    EXPECT_GT(timer().remainingTime(), left);
}

TEST_F(Timer, WithNotificationOffTheCheckIsPostedAllTheSame)
{
    document->notification = 0;

    EXPECT_THAT(tick(), ElementsAre(kPost));
}

TEST_F(Timer, PostingGivesNothingWithoutAManagerOrAQueue)
{
    manager->postInterStateVerifyIfPending();
    EXPECT_THAT(host.calls(), ElementsAre(kPost));

    SetKvStandardManager(nullptr);
    manager->postInterStateVerifyIfPending();
    EXPECT_THAT(host.calls(), ElementsAre(kPost));

    SetKvStandardManager(manager.get());
    manager->clearChangedObjects();
    manager->postInterStateVerifyIfPending();
    EXPECT_THAT(host.calls(), ElementsAre(kPost));
}

// SPDX-License-Identifier: MIT
#include "CKvCommandInterStateVerify.h"
#include "CKvCommandTest.h"
#include "CKvTranslationNotes.h"
#include "OdStaticRxObject.h"
#include "activeDocument.h"

#include <QDialogButtonBox>
#include <QFile>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr char kMessage[] = "CKvStandardViolationMessage";

struct InterStateVerify : CKvCommandTest {
    InterStateVerify()
    {
        open(QStringList(file("office.dws")));
        manager->loadDocumentStandards(&*document);
    }
    int run() { return command.execute(document->commandContext()); }
    /// What the plug-in was told to look at.
    std::vector<std::string> selections() const
    {
        std::vector<std::string> found;
        for (const std::string &call : calls) {
            if (call.find(".setObjectsToCheck") != std::string::npos) {
                found.push_back(call);
            }
        }
        return found;
    }

    OdStaticRxObject<CKvCommandInterStateVerify> command;
};

} // namespace

TEST_F(InterStateVerify, TellsItsNamesFlagsAndHelpTopic)
{
    EXPECT_EQ(command.globalName(), OdString("_INTERSTATEVERIFY"));
    EXPECT_EQ(command.localName(), OdString("INTERSTATEVERIFY"));
    EXPECT_EQ(command.flags(), 0x35841002);
    EXPECT_EQ(command.helpContextId(), 0);
}

TEST_F(InterStateVerify, ItsLocalNameIsTheSameInEveryLanguage)
{
    const CKvTranslationNotes translator;

    EXPECT_EQ(command.localName(), OdString("INTERSTATEVERIFY"));
}

TEST_F(InterStateVerify, ChecksTheChangedObjectsAndEmptiesTheQueue)
{
    plugin.finds(document->layer("WALLS"), 1, 0);
    document->changeLayer("WALLS", 3);
    press(kMessage, QDialogButtonBox::Ok);

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(selections(), ElementsAre("layers.setObjectsToCheck 1"));
    EXPECT_THAT(shown(), ElementsAre(kMessage));
    EXPECT_THAT(manager->changedObjects(), IsEmpty());
}

TEST_F(InterStateVerify, WithoutAManagerDoesNothing)
{
    document->changeLayer("WALLS", 3);
    SetKvStandardManager(nullptr);

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(calls, IsEmpty());
    EXPECT_THAT(manager->changedObjects(), testing::SizeIs(1));
}

TEST_F(InterStateVerify, AnEmptyQueueMeansAFullPassThatTellsOfAnyViolation)
{
    plugin.finds(document->layer("WALLS"), 1, 0);
    press(kMessage, QDialogButtonBox::Ok);

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(selections(), ElementsAre("layers.setObjectsToCheck 0 all"));
    EXPECT_THAT(shown(), ElementsAre(kMessage));
}

TEST_F(InterStateVerify, AnEmptyQueueWithoutViolationsShowsNothing)
{
    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(selections(), ElementsAre("layers.setObjectsToCheck 0 all"));
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(InterStateVerify, ObjectsOfADocumentThatIsNoLongerActiveArePassedOn)
{
    document->changeLayer("WALLS", 3);
    CKvSessionDocument second(drawing({ path("office.dws") }));

    EXPECT_EQ(command.execute(second.commandContext()), 5100);

    EXPECT_THAT(selections(), ElementsAre("layers.setObjectsToCheck 1"));
    EXPECT_THAT(manager->changedObjects(), IsEmpty());
    manager->untrackDocument(&second);
}

TEST_F(InterStateVerify, WithNotificationOffTheQueueIsEmptiedAndNothingIsChecked)
{
    document->changeLayer("WALLS", 3);
    document->notification = 0;

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(openedStandards(), IsEmpty());
    EXPECT_THAT(manager->changedObjects(), IsEmpty());
}

TEST_F(InterStateVerify, WithoutUsableStandardsTheDocumentIsNoLongerWatchedAndTheQueueIsEmptied)
{
    document->changeLayer("WALLS", 3);
    QFile::remove(path("office.dws"));

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(calls, IsEmpty());
    EXPECT_FALSE(manager->isTracked(&*document));
    EXPECT_THAT(manager->changedObjects(), IsEmpty());
}

TEST_F(InterStateVerify, WithoutAnActiveDocumentTheQueueIsEmptied)
{
    document->changeLayer("WALLS", 3);
    setActiveDocument(nullptr);

    EXPECT_EQ(run(), 5100);

    setActiveDocument(&*document);
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_THAT(manager->changedObjects(), IsEmpty());
    EXPECT_FALSE(manager->isInterStateCheck());
}

TEST_F(InterStateVerify, TheFlagIsUpWhileTheDialogsAreOpen)
{
    plugin.finds(document->layer("WALLS"), 1, 0);
    document->changeLayer("WALLS", 3);
    bool isUp = false;
    user.answer(QLatin1String(kMessage), [&](QDialog &dialog) {
        isUp = manager->isInterStateCheck();
        dialog.reject();
    });

    run();

    EXPECT_TRUE(isUp);
    EXPECT_FALSE(manager->isInterStateCheck());
}

TEST_F(InterStateVerify, WhatARepairChangesWhileItRunsIsNotCheckedAgain)
{
    plugin.finds(document->layer("WALLS"), 1, 0);
    document->changeLayer("WALLS", 3);
    user.answer(QLatin1String(kMessage), [&](QDialog &dialog) {
        document->changeLayer("WALLS", 5);
        dialog.reject();
    });

    run();

    EXPECT_THAT(manager->changedObjects(), IsEmpty());
}

TEST_F(InterStateVerify, AnExceptionLeavesTheFlagAndTheQueueAsTheyAre)
{
    document->changeLayer("WALLS", 3);
    plugin.failsIn("openStandards");

    EXPECT_THROW(run(), OdError);

    EXPECT_TRUE(manager->isInterStateCheck());
    EXPECT_THAT(manager->changedObjects(), ElementsAre(document->layer("WALLS")));
}

TEST_F(InterStateVerify, TheFilesAreReadAnewBeforeTheCheck)
{
    document->changeLayer("WALLS", 3);
    const QString found = file("found/office.dws");
    QFile::remove(path("office.dws"));
    host.setSupportFile("office.dws", found);

    run();

    EXPECT_THAT(openedStandards(),
                ElementsAre("layers.openStandards drawing drawing.dxf [office.dws] ["
                            + found.toStdString() + "]"));
}

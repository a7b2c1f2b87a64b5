// SPDX-License-Identifier: MIT
#include "CKvCommand.h"
#include "CKvManagerTest.h"
#include "activeDocument.h"

#include <QFile>

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

namespace
{

constexpr char kPost[] = "post 5005=_INTERSTATEVERIFY 5000";

/// A command that has a name and does nothing.
class CKvNamedCommand : public CKvCommand
{
public:
    explicit CKvNamedCommand(const char *name)
        : m_name(name)
    {
    }
    OdString globalName() const override { return m_name; }
    OdString localName() const override { return m_name; }
    int executeCommand(CKvCommandContext *) override { return kNormal; }

private:
    OdString m_name;
};

struct EditorReactor : CKvManagerTest {
    EditorReactor()
    {
        openTracked();
        document->changeLayer("WALLS", 3);
        host.forgetCalls();
    }
    void starts(const char *name)
    {
        CKvNamedCommand command(name);
        reactor.commandWillStart(&command, document->commandContext());
    }
    /// The command counts as running while it ends.
    void ends(const char *name)
    {
        CKvNamedCommand command(name);
        document->commandDepth += 1;
        reactor.commandEnded(&command, document->commandContext());
        document->commandDepth -= 1;
    }
    bool hasQueue() const { return !manager->changedObjects().empty(); }

    CKvStandardEditorReactor &reactor = *manager->editorReactor();
};

} // namespace

TEST_F(EditorReactor, AnOrdinaryCommandStartsWithAnEmptyQueue)
{
    starts("_LAYER");

    EXPECT_FALSE(hasQueue());
}

TEST_F(EditorReactor, TheCheckAndTheInsertionsOfBlocksKeepTheQueue)
{
    for (const char *name : { "_INTERSTATEVERIFY",
                              "_interStateVerify",
                              "_INSERTBLOCK",
                              "_insertblock",
                              "_-INSERTBLOCK",
                              "_-InsertBlock" }) {
        starts(name);

        EXPECT_TRUE(hasQueue()) << name;
    }
}

TEST_F(EditorReactor, AnOrdinaryCommandThatEndsPostsTheCheck)
{
    ends("_LAYER");

    EXPECT_THAT(host.calls(), ElementsAre(kPost));
    EXPECT_TRUE(hasQueue());
    EXPECT_TRUE(manager->isTimerActive());
}

TEST_F(EditorReactor, UndoPostsTheCheckAsAnyCommand)
{
    ends("_UNDO");

    EXPECT_THAT(host.calls(), ElementsAre(kPost));
}

TEST_F(EditorReactor, NothingIsPostedWhenNothingHasChanged)
{
    manager->clearChangedObjects();

    ends("_LAYER");

    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(EditorReactor, WithoutAContextNothingHappens)
{
    CKvNamedCommand command("_LAYER");
    CKvNamedCommand save("_SAVE");

    reactor.commandEnded(&command, nullptr);
    reactor.commandEnded(&save, nullptr);

    EXPECT_THAT(host.calls(), IsEmpty());
    EXPECT_TRUE(manager->isTimerActive());
}

TEST_F(EditorReactor, ACommandInsideAnotherPostsNothingUntilTheOuterOneEnds)
{
    document->commandDepth = 1;
    ends("_LAYER");
    ends("_SAVE");

    EXPECT_THAT(host.calls(), IsEmpty());
    EXPECT_TRUE(manager->isTimerActive());

    document->commandDepth = 0;
    ends("_LAYER");

    EXPECT_THAT(host.calls(), ElementsAre(kPost));
}

TEST_F(EditorReactor, ACommandOfAScriptPostsNothingAndTheEndOfTheScriptDoes)
{
    document->isScript = true;
    ends("_LAYER");
    ends("_SAVE");

    EXPECT_THAT(host.calls(), IsEmpty());
    EXPECT_TRUE(manager->isTimerActive());

    ends("_LoadScript");

    EXPECT_THAT(host.calls(), ElementsAre(kPost));
}

TEST_F(EditorReactor, ABusyDocumentPostsNothing)
{
    document->isBusy = true;

    ends("_LAYER");
    ends("_SAVE");

    EXPECT_THAT(host.calls(), IsEmpty());
    EXPECT_TRUE(manager->isTimerActive());
}

TEST_F(EditorReactor, RedoPostsNothingAndWatchesTheDocumentAgain)
{
    manager->untrackDocument(&*document);

    ends("_REDO");

    EXPECT_THAT(host.calls(), IsEmpty());
    EXPECT_TRUE(manager->isTracked(&*document));
    EXPECT_TRUE(manager->isTimerActive());
    EXPECT_TRUE(hasQueue());
}

TEST_F(EditorReactor, RedoWithoutADocumentIsTolerated)
{
    CKvNamedCommand command("_REDO");
    setActiveDocument(nullptr);

    reactor.commandEnded(&command, document->commandContext());

    setActiveDocument(&*document);
    EXPECT_THAT(host.calls(), IsEmpty());
    EXPECT_TRUE(manager->isTracked(&*document));
}

TEST_F(EditorReactor, RedoOfSeveralStepsIsARedo)
{
    ends("_RedoN");

    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(EditorReactor, RedoWithoutUsableStandardsStopsTheTimer)
{
    QFile::remove(path("office.dws"));
    manager->loadDocumentStandards(&*document);

    ends("_REDO");

    EXPECT_FALSE(manager->isTimerActive());
    EXPECT_FALSE(manager->isTracked(&*document));
    EXPECT_TRUE(hasQueue());
    EXPECT_THAT(host.calls(), Not(testing::Contains(kPost)));
}

TEST_F(EditorReactor, SavingAndVerifyingStopTheTimerAndKeepTheQueue)
{
    for (const char *name :
         { "_SAVE", "_qsave", "_SaveAs", "_VERIFYSTANDARDS", "_DrawingStandards" }) {
        manager->restartTimer();

        ends(name);

        EXPECT_FALSE(manager->isTimerActive()) << name;
        EXPECT_TRUE(hasQueue()) << name;
    }
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(EditorReactor, ACancelledCommandDropsTheQueue)
{
    CKvNamedCommand command("_LAYER");

    reactor.commandCancelled(&command, document->commandContext());

    EXPECT_FALSE(hasQueue());
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(EditorReactor, AFailedCommandKeepsTheQueueAndPostsNothing)
{
    CKvNamedCommand command("_LAYER");

    reactor.commandFailed(&command, document->commandContext());

    EXPECT_TRUE(hasQueue());
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(EditorReactor, AnExpressionStartsWithAnEmptyQueueAndItsEndPostsTheCheck)
{
    reactor.lispWillStart(OdString("(x)"));
    EXPECT_FALSE(hasQueue());

    reactor.lispEnded();
    EXPECT_THAT(host.calls(), IsEmpty());

    document->changeLayer("WALLS", 4);
    reactor.lispEnded();

    EXPECT_THAT(host.calls(), ElementsAre(kPost));
}

TEST_F(EditorReactor, ACancelledExpressionDropsTheQueue)
{
    reactor.lispCancelled();

    EXPECT_FALSE(hasQueue());
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(EditorReactor, WithoutAManagerNothingHappens)
{
    CKvNamedCommand command("_LAYER");
    SetKvStandardManager(nullptr);

    starts("_LAYER");
    for (const char *name : { "_LAYER", "_REDO", "_SAVE" }) {
        ends(name);
    }
    reactor.commandCancelled(&command, document->commandContext());
    reactor.lispWillStart(OdString("(x)"));
    reactor.lispEnded();
    reactor.lispCancelled();

    EXPECT_TRUE(hasQueue());
    EXPECT_TRUE(manager->isTimerActive());
    EXPECT_THAT(host.calls(), IsEmpty());
}

// SPDX-License-Identifier: MIT
#include "CKvDesktopTest.h"
#include "CKvDialog.h"
#include "CKvMainWindow.h"
#include "helpTopics.h"

#include <QTest>
#include <QTextBrowser>
#include <QWindow>

namespace
{

class CKvTopicDialog : public CKvDialog
{
public:
    explicit CKvTopicDialog(bool hasHelp)
        : CKvDialog(nullptr, hasHelp)
    {
    }
    int helpContextId() const override { return 3072; }
};

QTextBrowser *shownHelp()
{
    for (QWidget *widget : QApplication::allWidgets()) {
        if (widget->objectName() == QLatin1String("HelpWindow") && widget->isVisible()) {
            return static_cast<QTextBrowser *>(widget);
        }
    }
    return nullptr;
}

} // namespace

TEST_F(CKvDesktopTest, TopicsOpenInAWindow)
{
    showHelpTopic(0);
    EXPECT_EQ(shownHelp(), nullptr);

    showHelpTopic(3071);
    ASSERT_NE(shownHelp(), nullptr);
    EXPECT_EQ(shownHelp()->windowTitle(), text("Drawing standards"));
    showHelpTopic(3072);

    EXPECT_EQ(shownHelp()->windowTitle(), text("Verifying a drawing"));
    EXPECT_TRUE(shownHelp()->toPlainText().contains(text("VERIFYSTANDARDS")));
}

TEST_F(CKvDesktopTest, TheTopicAboutEditingNamesEachCommandThatChangesADrawing)
{
    showHelpTopic(3073);

    ASSERT_NE(shownHelp(), nullptr);
    for (const char *command : { "LAYER",
                                 "LINETYPE",
                                 "STYLE",
                                 "DIMSTYLE",
                                 "RENAME",
                                 "PURGE",
                                 "LINE",
                                 "CIRCLE",
                                 "TEXT",
                                 "INSERTBLOCK",
                                 "ERASE",
                                 "UNDO",
                                 "REDO",
                                 "REDON",
                                 "SETVAR" }) {
        EXPECT_TRUE(shownHelp()->toPlainText().contains(text(command))) << command;
        EXPECT_TRUE(session().commands().find(text(command))) << command;
    }
}

TEST_F(CKvDesktopTest, F1InADialogOpensItsTopicUnlessItHasNoHelp)
{
    CKvTopicDialog without(false);
    without.show();
    QTest::keyClick(&without, Qt::Key_F1);
    EXPECT_EQ(shownHelp(), nullptr);

    CKvTopicDialog with(true);
    with.show();
    QTest::keyClick(&with, Qt::Key_F1);

    ASSERT_NE(shownHelp(), nullptr);
    EXPECT_EQ(shownHelp()->windowTitle(), text("Verifying a drawing"));
}

TEST_F(CKvDesktopTest, HelpForAModalDialogCanBeUsedWhileItIsOpen)
{
    CKvTopicDialog dialog(true);
    dialog.setModal(true);
    dialog.show();

    dialog.Help();

    ASSERT_NE(shownHelp(), nullptr);
    EXPECT_EQ(shownHelp()->parentWidget(), &dialog);
    EXPECT_TRUE(shownHelp()->isWindow());
}

TEST_F(CKvDesktopTest, EscapeClosesTheHelpAndLeavesTheDialogOpen)
{
    CKvTopicDialog dialog(true);
    dialog.setModal(true);
    dialog.show();
    dialog.Help();
    ASSERT_NE(shownHelp(), nullptr);

    QTest::keyClick(shownHelp(), Qt::Key_Escape);

    EXPECT_EQ(shownHelp(), nullptr);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(CKvDesktopTest, ADialogWhoseParentIsNotSeenStandsOverTheMainWindow)
{
    window().move(600, 500);
    QWidget unseen;
    CKvDialog dialog(&unseen);
    dialog.setFixedSize(200, 100);

    dialog.show();

    EXPECT_TRUE(window().geometry().contains(dialog.frameGeometry()));
    EXPECT_EQ(dialog.windowHandle()->transientParent(), window().windowHandle());
}

// SPDX-License-Identifier: MIT
#include "CKvMainWindow.h"

#include "CKvCommandPanel.h"
#include "CKvDesktopTest.h"
#include "CKvDrawingView.h"
#include "CKvHostDocument.h"
#include "CKvModalScript.h"
#include "CKvTestApplication.h"

#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace
{

class MainWindow : public CKvDesktopTest
{
protected:
    QTabWidget &tabs() { return *child<QTabWidget>(window(), "DocumentTabs"); }
    QStringList tabTexts()
    {
        QStringList texts;
        for (int i = 0; i < tabs().count(); ++i) {
            texts << tabs().tabText(i);
        }
        return texts;
    }
    QAction &action(const char *name) { return *child<QAction>(window(), name); }
    static void press(QDialog &box, QMessageBox::StandardButton button)
    {
        static_cast<QMessageBox &>(box).button(button)->click();
    }
};

} // namespace

TEST_F(MainWindow, EachDocumentHasATabAndTheTabInFrontIsActive)
{
    open(write("a.dxf"));
    open(write("b.dxf"));
    EXPECT_EQ(tabTexts(), list({ "a.dxf", "b.dxf" }));
    EXPECT_EQ(m_desktop->activeDocument()->title(), text("b.dxf"));

    tabs().setCurrentIndex(0);

    EXPECT_EQ(m_desktop->activeDocument()->title(), text("a.dxf"));
    EXPECT_EQ(window().windowTitle(), text("a.dxf[*]"));
    enter("CLOSE");
    EXPECT_EQ(tabTexts(), list({ "b.dxf" }));
    EXPECT_EQ(m_desktop->activeDocument()->title(), text("b.dxf"));
}

TEST_F(MainWindow, AMenuEntryIsEchoedAsItsCommand)
{
    open(write("a.dxf"));
    finishPicture();

    action("ZOOM EAction").trigger();
    action("REGENAction").trigger();

    EXPECT_EQ(window().panel().history(), text("Command: ZOOM E\nCommand: REGEN"));
}

TEST_F(MainWindow, MenusHaveMnemonicsAndNoKeyIsTakenTwice)
{
    QStringList shortcuts;
    for (QAction *entry : window().menuBar()->actions()) {
        EXPECT_TRUE(entry->text().contains(QLatin1Char('&'))) << entry->text().toStdString();
        QStringList mnemonics;
        for (QAction *one : entry->menu()->actions()) {
            if (one->isSeparator()) {
                continue;
            }
            const int at = one->text().indexOf(QLatin1Char('&'));
            EXPECT_GE(at, 0) << one->text().toStdString();
            mnemonics << one->text().mid(at + 1, 1).toUpper();
            if (!one->shortcut().isEmpty()) {
                shortcuts << one->shortcut().toString();
            }
        }
        EXPECT_EQ(mnemonics.removeDuplicates(), 0) << entry->text().toStdString();
    }
    EXPECT_EQ(shortcuts.removeDuplicates(), 0);
    EXPECT_TRUE(shortcuts.contains(text("Ctrl+O")));
}

TEST_F(MainWindow, UnsavedChangesAreMarkedAndAskedFor)
{
    open(write("a.dxf"));
    changeLayer("L0", 5);
    window().updateTitles();
    EXPECT_EQ(tabTexts(), list({ "a.dxf *" }));
    EXPECT_TRUE(window().isWindowModified());
    CKvModalScript script;
    script.answer(text("QMessageBox"), [](QDialog &box) { press(box, QMessageBox::Cancel); });

    enter("CLOSE");

    EXPECT_EQ(script.shown(), list({ "QMessageBox" }));
    EXPECT_EQ(tabTexts(), list({ "a.dxf *" }));
    EXPECT_EQ(said(), list({ "*Cancel*" }));
    script.answer(text("QMessageBox"), [](QDialog &box) { press(box, QMessageBox::Save); });
    enter("CLOSE");
    EXPECT_EQ(tabTexts(), QStringList());
    EXPECT_TRUE(contentOf(path("a.dxf")).contains("62\n5"));
}

TEST_F(MainWindow, DiscardedChangesAreNotWritten)
{
    const QByteArray before = contentOf(write("a.dxf"));
    open(path("a.dxf"));
    changeLayer("L0", 5);
    CKvModalScript script;
    script.answer(text("QMessageBox"), [](QDialog &box) { press(box, QMessageBox::Discard); });

    EXPECT_TRUE(window().close());

    EXPECT_EQ(script.shown(), list({ "QMessageBox" }));
    EXPECT_EQ(contentOf(path("a.dxf")), before);
    EXPECT_EQ(m_desktop->activeDocument(), nullptr);
}

TEST_F(MainWindow, ClosingTheWindowCanBeRefused)
{
    open(write("a.dxf"));
    changeLayer("L0", 5);
    CKvModalScript script;
    script.answer(text("QMessageBox"), [](QDialog &box) { press(box, QMessageBox::Cancel); });

    EXPECT_FALSE(window().close());

    EXPECT_NE(m_desktop->activeDocument(), nullptr);
}

TEST_F(MainWindow, ADrawingThatCanNotBeSavedKeepsTheWindowOpen)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(text("plans")));
    open(write("plans/a.dxf"));
    changeLayer("L0", 5);
    ASSERT_TRUE(QDir(path("plans")).removeRecursively());
    CKvModalScript script;
    script.answer(text("QMessageBox"), [](QDialog &box) { press(box, QMessageBox::Save); });

    EXPECT_FALSE(window().close());
    QCoreApplication::sendPostedEvents(QCoreApplication::instance());

    EXPECT_EQ(CKvTestApplication::instance()->takeFailures().size(), 1U);
    EXPECT_TRUE(window().isVisible());
    ASSERT_NE(m_desktop->activeDocument(), nullptr);
    EXPECT_TRUE(m_desktop->activeDocument()->isModified());
}

TEST_F(MainWindow, FilesThatAreDroppedAreOpened)
{
    QMimeData data;
    data.setUrls(
        { QUrl::fromLocalFile(write("with blank.dxf")), QUrl::fromLocalFile(write("b.dxf")) });
    QDragEnterEvent enters(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent event(
        QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier, QEvent::Drop);

    QCoreApplication::sendEvent(&window(), &enters);
    QCoreApplication::sendEvent(&window(), &event);

    EXPECT_TRUE(enters.isAccepted());
    EXPECT_EQ(tabTexts(), list({ "with blank.dxf", "b.dxf" }));
}

TEST_F(MainWindow, RecentFilesCanBeOpenedAgain)
{
    enter(QString(text("OPEN ") + write("a.dxf")));
    enter(QString(text("OPEN ") + write("b.dxf")));
    enter("CLOSE");
    EXPECT_EQ(session().settings().recentFiles(), QStringList({ path("b.dxf"), path("a.dxf") }));

    for (QMenu *menu : window().findChildren<QMenu *>()) {
        if (menu->title() == text("Open &Recent")) {
            menu->actions().first()->trigger();
        }
    }

    EXPECT_EQ(tabTexts(), list({ "a.dxf", "b.dxf" }));
}

TEST_F(MainWindow, ColoursChangeAtOnceAndAreKept)
{
    open(write("a.dxf"));
    finishPicture();
    const QColor light = window().activeView()->toImage().pixelColor(0, 0);

    action("DarkAction").setChecked(true);
    const QColor dark = window().activeView()->toImage().pixelColor(0, 0);
    action("DarkAction").setChecked(false);

    EXPECT_GT(light.lightness(), 200);
    EXPECT_LT(dark.lightness(), 60);
    EXPECT_EQ(session().settings().store().value(text("window/palette")).toString(), text("light"));
}

TEST_F(MainWindow, WhatAUserWorksWithHasAnAccessibleName)
{
    open(write("a.dxf"));

    for (const char *name :
         { "CommandEdit", "CommandHistory", "DocumentTabs", "DrawingView", "ReadingProgress" }) {
        const QWidget *found = child<QWidget>(window(), name);
        EXPECT_FALSE(found->accessibleName().isEmpty()) << name;
    }
}

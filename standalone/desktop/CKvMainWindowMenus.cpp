// SPDX-License-Identifier: MIT
#include "CKvMainWindow.h"

#include "CKvDesktop.h"
#include "CKvDrawingView.h"
#include "helpTopics.h"
#include "takeWord.h"

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

namespace
{

constexpr int kSettingsTopic = 3071;
constexpr int kVerificationTopic = 3072;
constexpr int kEditingTopic = 3073;

} // namespace

QAction *CKvMainWindow::addCommand(QMenu &menu,
                                   const QString &text,
                                   const QString &command,
                                   const QKeySequence &shortcut)
{
    QAction *action = menu.addAction(text);
    action->setShortcut(shortcut);
    action->setObjectName(QString(command + QLatin1String("Action")));
    connect(action, &QAction::triggered, this, [this, command] { enter(command); });
    return action;
}

void CKvMainWindow::makeMenus()
{
    makeFileMenu();
    makeEditMenu();
    makeViewMenu();
    makeStandardsMenu();
    makeHelpMenu();
}

void CKvMainWindow::makeFileMenu()
{
    QMenu &menu = *menuBar()->addMenu(tr("&File"));
    addCommand(menu, tr("&New"), QStringLiteral("NEW"), QKeySequence::New);
    addCommand(menu, tr("&Open…"), QStringLiteral("OPEN"), QKeySequence::Open);
    m_recentMenu = menu.addMenu(tr("Open &Recent"));
    addCommand(menu, tr("&Close"), QStringLiteral("CLOSE"), QKeySequence::Close);
    menu.addSeparator();
    addCommand(menu, tr("&Save"), QStringLiteral("QSAVE"), QKeySequence::Save);
    addCommand(menu, tr("Save &As…"), QStringLiteral("SAVEAS"), QKeySequence(tr("Ctrl+Shift+S")));
    menu.addSeparator();
    addCommand(menu, tr("Run Scri&pt…"), QStringLiteral("LOADSCRIPT"));
    menu.addSeparator();
    addCommand(menu, tr("E&xit"), QStringLiteral("QUIT"), QKeySequence(tr("Ctrl+Q")));
}

void CKvMainWindow::makeEditMenu()
{
    QMenu &menu = *menuBar()->addMenu(tr("&Edit"));
    addCommand(menu, tr("&Undo"), QStringLiteral("UNDO"), QKeySequence::Undo);
    addCommand(menu, tr("&Redo"), QStringLiteral("REDO"), QKeySequence(tr("Ctrl+Y")));
    menu.addSeparator();
    addCommand(menu, tr("&Line"), QStringLiteral("LINE"));
    addCommand(menu, tr("&Circle"), QStringLiteral("CIRCLE"));
    addCommand(menu, tr("&Text"), QStringLiteral("TEXT"));
    addCommand(menu, tr("&Insert Block"), QStringLiteral("INSERTBLOCK"));
    menu.addSeparator();
    addCommand(menu, tr("&Erase"), QStringLiteral("ERASE"), QKeySequence(tr("Ctrl+Del")));
    addCommand(menu, tr("&Purge"), QStringLiteral("PURGE"));
}

void CKvMainWindow::makeViewMenu()
{
    QMenu &menu = *menuBar()->addMenu(tr("&View"));
    addCommand(menu, tr("Zoom &Extents"), QStringLiteral("ZOOM E"), QKeySequence(tr("Ctrl+0")));
    addCommand(menu, tr("Zoom &In"), QStringLiteral("ZOOM I"), QKeySequence(tr("Ctrl++")));
    addCommand(menu, tr("Zoom &Out"), QStringLiteral("ZOOM O"), QKeySequence(tr("Ctrl+-")));
    addCommand(menu, tr("Zoom &Window"), QStringLiteral("ZOOM W"));
    addCommand(menu, tr("Zoom &Previous"), QStringLiteral("ZOOM P"));
    menu.addSeparator();
    addCommand(menu, tr("&Regenerate"), QStringLiteral("REGEN"), QKeySequence::Refresh);
    menu.addSeparator();
    QAction *records = m_recordsDock->toggleViewAction();
    records->setText(tr("Layers and &Styles"));
    menu.addAction(records);
    m_lineWeights = menu.addAction(tr("Show &Lineweights"));
    m_lineWeights->setObjectName(QStringLiteral("LineWeightsAction"));
    m_lineWeights->setCheckable(true);
    connect(m_lineWeights, &QAction::toggled, this, [this](bool isOn) {
        if (CKvDrawingView *view = activeView()) {
            view->setShowsLineWeights(isOn);
        }
    });
    m_dark = menu.addAction(tr("&Dark Colours"));
    m_dark->setObjectName(QStringLiteral("DarkAction"));
    m_dark->setCheckable(true);
    m_dark->setChecked(palette().color(QPalette::Window).lightness() < 128);
    connect(m_dark, &QAction::toggled, this, [this](bool isDark) {
        m_desktop.usePalette(isDark ? QStringLiteral("dark") : QStringLiteral("light"));
    });
}

void CKvMainWindow::makeStandardsMenu()
{
    QMenu &menu = *menuBar()->addMenu(tr("&Standards"));
    addCommand(
        menu, tr("&Verify Standards…"), QStringLiteral("VERIFYSTANDARDS"), QKeySequence(tr("F8")));
    addCommand(menu, tr("Drawing &Standards…"), QStringLiteral("DRAWINGSTANDARDS"));
}

void CKvMainWindow::makeHelpMenu()
{
    QMenu &menu = *menuBar()->addMenu(tr("&Help"));
    connect(menu.addAction(tr("About Drawing &Standards")), &QAction::triggered, this, [] {
        showHelpTopic(kSettingsTopic);
    });
    connect(menu.addAction(tr("About &Verification")), &QAction::triggered, this, [] {
        showHelpTopic(kVerificationTopic);
    });
    connect(menu.addAction(tr("About &Editing")), &QAction::triggered, this, [] {
        showHelpTopic(kEditingTopic);
    });
    menu.addSeparator();
    connect(menu.addAction(tr("&About kvdesk")), &QAction::triggered, this, [this] {
        QMessageBox::about(this,
                           tr("About kvdesk"),
                           tr("kvdesk %1\n\nShows drawings and keeps them in line with their "
                              "standards.\nMIT licence.")
                               .arg(QStringLiteral(KV_VERSION)));
    });
}

void CKvMainWindow::updateRecentFiles()
{
    m_recentMenu->clear();
    int number = 1;
    for (const QString &path : m_desktop.session().settings().recentFiles()) {
        QString shown = QDir::toNativeSeparators(path);
        shown.replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction *action =
            m_recentMenu->addAction(QStringLiteral("&%1 %2").arg(number++).arg(shown));
        connect(action, &QAction::triggered, this, [this, path] {
            enter(QString(QStringLiteral("OPEN ") + quoted(path)));
        });
    }
    m_recentMenu->setEnabled(!m_recentMenu->isEmpty());
}

void CKvMainWindow::updateActions()
{
    const CKvDrawingView *view = activeView();
    const QSignalBlocker quiet(m_lineWeights);
    m_lineWeights->setChecked(view && view->showsLineWeights());
    m_lineWeights->setEnabled(view != nullptr);
}

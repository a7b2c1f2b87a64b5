// SPDX-License-Identifier: MIT
#pragma once

#include "CKvApplicationFrame.h"
#include "CKvDocumentManagerReactor.h"

#include <QMainWindow>

#include <map>

class CKvCommandPanel;
class CKvDesktop;
class CKvDrawingView;
class CKvHostDocument;
class CKvRecordsPanel;
class QAction;
class QDockWidget;
class QLabel;
class QMenu;
class QProgressBar;
class QPushButton;
class QTabWidget;

/// The window: a tab for each document, the command line below, menus whose entries are commands.
class CKvMainWindow : public QMainWindow,
                      public CKvApplicationFrame,
                      public CKvDocumentManagerReactor
{
    Q_OBJECT

public:
    explicit CKvMainWindow(CKvDesktop &desktop);
    ~CKvMainWindow() override;

    QWidget *mainWindow() override { return this; }

    CKvCommandPanel &panel() const { return *m_panel; }
    /// Null when no document is open.
    CKvDrawingView *activeView() const;
    CKvDrawingView *viewOf(const CKvDocument *document) const;

    /// Asks whether changes may be lost, or saves them.
    /// @return false when the document has to stay open.
    bool mayClose(CKvHostDocument &document);
    /// Tells what stands in the way of writing the file and asks.
    /// @return false when it has to stay as it is.
    bool mayOverwrite(CKvHostDocument &document, const QString &path);
    /// Closes the window once the running command has ended.
    /// @param discards true: unsaved changes are given up.
    void closeLater(bool discards);
    void showReading(const QString &path);
    void updateRecentFiles();
    void updateTitles();
    void rebuildPicture();
    /// The next click in the drawing answers the waiting question.
    void setPicksPoints(bool picks);

    void DocumentCreated(CKvDocument *document) override;
    void DocumentToBeDestroyed(CKvDocument *document) override;
    void DocumentBecameCurrent(CKvDocument *document) override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private slots:
    void closeWhenIdle();

private:
    void makeTabs();
    void makeRecordsPanel();
    void makeStatusBar();
    void makeMenus();
    void makeFileMenu();
    void makeEditMenu();
    void makeViewMenu();
    void makeStandardsMenu();
    void makeHelpMenu();
    /// A menu entry that stands for a command.
    QAction *addCommand(QMenu &menu,
                        const QString &text,
                        const QString &command,
                        const QKeySequence &shortcut = QKeySequence());
    void enter(const QString &line);
    /// @return false when a drawing stays open.
    bool closeDocuments();
    void watch(CKvDrawingView &view);
    void showProgress(const CKvDrawingView &view, double part);
    void updateActions();

    CKvDesktop &m_desktop;
    QTabWidget *m_tabs;
    CKvCommandPanel *m_panel;
    CKvRecordsPanel *m_records = nullptr;
    QDockWidget *m_recordsDock = nullptr;
    QMenu *m_recentMenu = nullptr;
    QAction *m_lineWeights = nullptr;
    QAction *m_dark = nullptr;
    QLabel *m_place = nullptr;
    QProgressBar *m_progress = nullptr;
    QPushButton *m_cancel = nullptr;
    std::map<const CKvDocument *, CKvDrawingView *> m_views;
    bool m_discardsChanges = false;
};

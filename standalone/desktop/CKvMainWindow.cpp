// SPDX-License-Identifier: MIT
#include "CKvMainWindow.h"

#include "CKvCommandEdit.h"
#include "CKvCommandPanel.h"
#include "CKvDesktop.h"
#include "CKvDrawingView.h"
#include "CKvHostDocument.h"
#include "CKvRecordsPanel.h"
#include "askPoint.h"
#include "runFromWidget.h"
#include "takeWord.h"

#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace
{

constexpr int kStepsOfProgress = 1000;
constexpr int kMessageMs = 3000;
// A name, the marks, a line style and a lineweight.
constexpr int kPanelChars = 50;

} // namespace

CKvMainWindow::CKvMainWindow(CKvDesktop &desktop)
    : m_desktop(desktop)
    , m_tabs(new QTabWidget(this))
    , m_panel(new CKvCommandPanel(desktop.commandLine(), desktop.session().commands(), this))
{
    setObjectName(QStringLiteral("MainWindow"));
    setAcceptDrops(true);
    auto *center = new QWidget(this);
    auto *column = new QVBoxLayout(center);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_tabs, 1);
    column->addWidget(m_panel);
    setCentralWidget(center);
    makeTabs();
    makeRecordsPanel();
    makeStatusBar();
    makeMenus();
    updateRecentFiles();
    updateTitles();
    connect(&desktop.commandLine(), &CKvCommandLine::commandFinished, this, [this] {
        setPicksPoints(false);
        updateTitles();
        m_records->refreshLater();
    });
    connect(m_panel, &CKvCommandPanel::askingChanged, this, [this](bool isAsking) {
        if (!isAsking) {
            setPicksPoints(false);
        }
    });
    desktop.session().documentManager()->addDocumentReactor(this);
    resize(1180, 780);
    resizeDocks(
        { m_recordsDock }, { fontMetrics().averageCharWidth() * kPanelChars }, Qt::Horizontal);
    m_panel->edit()->setFocus();
}

CKvMainWindow::~CKvMainWindow()
{
    m_desktop.session().documentManager()->removeDocumentReactor(this);
}

void CKvMainWindow::makeTabs()
{
    m_tabs->setObjectName(QStringLiteral("DocumentTabs"));
    m_tabs->setAccessibleName(tr("Open drawings"));
    m_tabs->setDocumentMode(true);
    m_tabs->setTabsClosable(true);
    m_tabs->setMovable(true);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] {
        if (const CKvDrawingView *view = activeView()) {
            m_desktop.session().documentManager()->activate(view->document());
        }
        updateActions();
    });
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, [this](int index) {
        m_tabs->setCurrentIndex(index);
        enter(QStringLiteral("CLOSE"));
    });
}

void CKvMainWindow::makeRecordsPanel()
{
    m_records = new CKvRecordsPanel(this);
    m_recordsDock = new QDockWidget(tr("Layers and Styles"), this);
    m_recordsDock->setObjectName(QStringLiteral("RecordsDock"));
    m_recordsDock->setWidget(m_records);
    addDockWidget(Qt::LeftDockWidgetArea, m_recordsDock);
    connect(m_records, &CKvRecordsPanel::commandWanted, this, &CKvMainWindow::enter);
}

void CKvMainWindow::makeStatusBar()
{
    m_place = new QLabel(this);
    m_place->setObjectName(QStringLiteral("PlaceLabel"));
    m_place->setMinimumWidth(fontMetrics().averageCharWidth() * 34);
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QStringLiteral("ReadingProgress"));
    m_progress->setAccessibleName(tr("Progress of reading the drawing"));
    m_progress->setRange(0, kStepsOfProgress);
    m_progress->setMaximumWidth(220);
    m_cancel = new QPushButton(tr("Cancel"), this);
    m_cancel->setObjectName(QStringLiteral("CancelReadingButton"));
    statusBar()->addPermanentWidget(m_progress);
    statusBar()->addPermanentWidget(m_cancel);
    statusBar()->addPermanentWidget(m_place);
    m_progress->hide();
    m_cancel->hide();
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        CKvDrawingView *view = activeView();
        if (!view || !view->picture().isBuilding()) {
            return;
        }
        const bool isFirst = view->picture().picture() == nullptr;
        view->picture().cancel();
        m_progress->hide();
        m_cancel->hide();
        // A drawing that was never seen is as good as not opened.
        if (isFirst && !view->document().isModified()) {
            enter(QStringLiteral("CLOSE"));
        }
    });
}

CKvDrawingView *CKvMainWindow::activeView() const
{
    return static_cast<CKvDrawingView *>(m_tabs->currentWidget());
}

CKvDrawingView *CKvMainWindow::viewOf(const CKvDocument *document) const
{
    const auto found = m_views.find(document);
    return found == m_views.end() ? nullptr : found->second;
}

void CKvMainWindow::enter(const QString &line)
{
    runFromWidget([&] { m_panel->enterCommand(line); });
}

void CKvMainWindow::DocumentCreated(CKvDocument *document)
{
    auto &opened = static_cast<CKvHostDocument &>(*document);
    auto *view = new CKvDrawingView(opened, m_tabs);
    m_views[document] = view;
    watch(*view);
    m_tabs->addTab(view, opened.title());
    updateTitles();
}

void CKvMainWindow::watch(CKvDrawingView &view)
{
    connect(&view, &CKvDrawingView::pointerMoved, this, [this](QPointF place) {
        m_place->setText(QStringLiteral("%1, %2").arg(QString::number(place.x(), 'f', 4),
                                                      QString::number(place.y(), 'f', 4)));
    });
    connect(&view, &CKvDrawingView::pointPicked, this, [this](QPointF place) {
        m_panel->answer(pointToText(place));
    });
    connect(&view, &CKvDrawingView::typed, this, [this](QKeyEvent *event) {
        m_panel->edit()->setFocus();
        m_panel->edit()->type(event);
    });
    connect(&view.picture(), &CKvDocumentPicture::progressed, this, [this, &view](double part) {
        showProgress(view, part);
    });
    connect(&view.picture(), &CKvDocumentPicture::completed, this, [this, &view] {
        showProgress(view, 1);
    });
}

void CKvMainWindow::showProgress(const CKvDrawingView &view, double part)
{
    if (&view != activeView()) {
        return;
    }
    const bool isRunning = part < 1;
    m_progress->setValue(int(part * kStepsOfProgress));
    m_progress->setVisible(isRunning);
    m_cancel->setVisible(isRunning);
}

void CKvMainWindow::DocumentToBeDestroyed(CKvDocument *document)
{
    // The view looks at the drawing, which goes next.
    const auto found = m_views.find(document);
    if (found != m_views.end()) {
        CKvDrawingView *view = found->second;
        m_views.erase(found);
        m_records->setDocument(nullptr);
        const QSignalBlocker quiet(m_tabs);
        m_tabs->removeTab(m_tabs->indexOf(view));
        delete view;
    }
    m_progress->hide();
    m_cancel->hide();
}

void CKvMainWindow::DocumentBecameCurrent(CKvDocument *document)
{
    if (CKvDrawingView *view = viewOf(document)) {
        const QSignalBlocker quiet(m_tabs);
        m_tabs->setCurrentWidget(view);
    }
    m_records->setDocument(static_cast<CKvHostDocument *>(document));
    updateTitles();
    updateActions();
}

void CKvMainWindow::updateTitles()
{
    for (const auto &[document, view] : m_views) {
        const CKvHostDocument &shown = view->document();
        const int index = m_tabs->indexOf(view);
        m_tabs->setTabText(
            index,
            QString(shown.title() + (shown.isModified() ? QStringLiteral(" *") : QString())));
        m_tabs->setTabToolTip(index, QDir::toNativeSeparators(shown.path()));
    }
    const CKvHostDocument *active = m_desktop.activeDocument();
    setWindowTitle(active ? QString(active->title() + QLatin1String("[*]"))
                          : QStringLiteral("kvdesk"));
    setWindowModified(active && active->isModified());
}

void CKvMainWindow::showReading(const QString &path)
{
    statusBar()->showMessage(tr("Reading %1…").arg(QDir::toNativeSeparators(path)), kMessageMs);
    // Reading blocks the window for as long as a large file takes.
    statusBar()->repaint();
}

void CKvMainWindow::rebuildPicture()
{
    if (CKvDrawingView *view = activeView()) {
        view->picture().rebuild();
    }
}

void CKvMainWindow::setPicksPoints(bool picks)
{
    for (const auto &entry : m_views) {
        entry.second->setPicksPoints(picks);
    }
}

bool CKvMainWindow::mayClose(CKvHostDocument &document)
{
    if (!document.isModified() || m_discardsChanges) {
        return true;
    }
    QMessageBox box(QMessageBox::Question,
                    tr("Unsaved Changes"),
                    tr("Save the changes to %1 before closing it?").arg(document.title()),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                    this);
    box.setObjectName(QStringLiteral("UnsavedChangesMessage"));
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    if (answer == QMessageBox::Save) {
        m_desktop.session().documentManager()->activate(document);
        m_desktop.commandLine().enter(QStringLiteral("QSAVE"));
        return !document.isModified();
    }
    return answer == QMessageBox::Discard;
}

bool CKvMainWindow::mayOverwrite(CKvHostDocument &document, const QString &path)
{
    using Hindrance = CKvHostDocument::Hindrance;
    const Hindrance hindrance = document.hindranceTo(path);
    if (hindrance == Hindrance::None) {
        return true;
    }
    const QString shown = QDir::toNativeSeparators(path);
    QMessageBox box(
        QMessageBox::Warning,
        tr("Save Drawing"),
        hindrance == Hindrance::ChangedOnDisk
            ? tr("%1 has changed on disk since it was read. Replace it all the same?").arg(shown)
            : tr("%1 is open elsewhere. Replace it all the same?").arg(shown),
        QMessageBox::Yes | QMessageBox::No,
        this);
    box.setObjectName(QStringLiteral("OverwriteMessage"));
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void CKvMainWindow::closeLater(bool discards)
{
    m_discardsChanges = discards;
    QTimer::singleShot(0, this, SLOT(closeWhenIdle()));
}

void CKvMainWindow::closeWhenIdle()
{
    // A script goes on for as long as it has lines; the window closes behind it.
    if (m_desktop.commandLine().isRunning()) {
        closeLater(m_discardsChanges);
    } else {
        close();
    }
}

void CKvMainWindow::closeEvent(QCloseEvent *event)
{
    // A drawing that can't be saved keeps the window.
    event->ignore();
    if (m_desktop.commandLine().isRunning()) {
        m_panel->cancel();
        return;
    }
    runFromWidget([&] { event->setAccepted(closeDocuments()); });
}

bool CKvMainWindow::closeDocuments()
{
    CKvHostDocumentManager &documents = *m_desktop.session().documentManager();
    while (!documents.documents().empty()) {
        // By the command: who notes what has changed forgets it when that begins.
        documents.activate(*documents.documents().back());
        if (m_desktop.commandLine().run(QStringLiteral("CLOSE"))
            != CKvCommandLine::Outcome::Ended) {
            m_discardsChanges = false;
            return false;
        }
    }
    return true;
}

void CKvMainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls()) {
        event->acceptProposedAction();
    }
}

void CKvMainWindow::dropEvent(QDropEvent *event)
{
    for (const QUrl &url : event->mimeData()->urls()) {
        if (url.isLocalFile()) {
            enter(QString(QStringLiteral("OPEN ") + quoted(url.toLocalFile())));
        }
    }
    event->acceptProposedAction();
}

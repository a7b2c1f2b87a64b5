// SPDX-License-Identifier: MIT
#include "CKvDialog.h"

#include "CKvApplicationFrame.h"
#include "CKvSystemServices.h"
#include "helpTopics.h"

#include <QKeyEvent>
#include <QWindow>

namespace
{

/// Null where there is none, or none that is seen.
QWidget *visibleMainWindow()
{
    CKvSystemServices *services = GetKvSystemServices();
    CKvApplicationFrame *frame = services ? services->applicationFrame() : nullptr;
    QWidget *window = frame ? frame->mainWindow() : nullptr;
    return window && window->isVisible() ? window : nullptr;
}

} // namespace

CKvDialog::CKvDialog(QWidget *parent, bool hasHelp, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_hasHelp(hasHelp)
{
}

CKvDialog::~CKvDialog() = default;

int CKvDialog::helpContextId() const
{
    return 0;
}

void CKvDialog::Help()
{
    showHelpTopic(helpContextId());
}

void CKvDialog::showEvent(QShowEvent *event)
{
    const bool hasPlace = parentWidget() && parentWidget()->window()->isVisible();
    QWidget *mainWindow = visibleMainWindow();
    if (!event->spontaneous() && !hasPlace && mainWindow) {
        // Otherwise the window system puts it anywhere, behind the main window too.
        windowHandle()->setTransientParent(mainWindow->windowHandle());
        move(mainWindow->geometry().center() - rect().center());
    }
    QDialog::showEvent(event);
}

void CKvDialog::keyPressEvent(QKeyEvent *event)
{
    if (m_hasHelp && event->matches(QKeySequence::HelpContents)) {
        Help();
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

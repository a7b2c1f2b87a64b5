// SPDX-License-Identifier: MIT
#include "CKvDialog.h"

#include "helpTopics.h"

#include <QKeyEvent>

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

void CKvDialog::keyPressEvent(QKeyEvent *event)
{
    if (m_hasHelp && event->matches(QKeySequence::HelpContents)) {
        Help();
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

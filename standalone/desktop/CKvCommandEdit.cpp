// SPDX-License-Identifier: MIT
#include "CKvCommandEdit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>

CKvCommandEdit::CKvCommandEdit(QWidget *parent)
    : QLineEdit(parent)
{
}

void CKvCommandEdit::submit()
{
    const QString line = text();
    if (!line.trimmed().isEmpty() && (m_history.isEmpty() || m_history.last() != line)) {
        m_history << line;
    }
    m_at = m_history.size();
    clear();
    if (completer()) {
        completer()->popup()->hide();
    }
    emit entered(line);
}

void CKvCommandEdit::recall(int step)
{
    const int at = m_at + step;
    if (at >= 0 && at <= m_history.size()) {
        m_at = at;
        setText(at < m_history.size() ? m_history[at] : QString());
    }
}

void CKvCommandEdit::keyPressEvent(QKeyEvent *event)
{
    // A text in quotes, or an expression, goes on behind a blank.
    const bool isOpen =
        text().count(QLatin1Char('"')) % 2 == 1 || text().trimmed().startsWith(QLatin1Char('('));
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        submit();
        return;
    case Qt::Key_Space:
        if (!m_areBlanksAllowed && !isOpen) {
            submit();
            return;
        }
        break;
    case Qt::Key_Escape:
        clear();
        emit brokenOff();
        return;
    case Qt::Key_Up:
        recall(-1);
        return;
    case Qt::Key_Down:
        recall(1);
        return;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}

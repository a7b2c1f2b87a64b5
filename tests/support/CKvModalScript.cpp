// SPDX-License-Identifier: MIT
#include "CKvModalScript.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>

#include <gtest/gtest.h>

CKvModalScript::CKvModalScript()
{
    qApp->installEventFilter(this);
}

CKvModalScript::~CKvModalScript()
{
    qApp->removeEventFilter(this);
}

void CKvModalScript::answer(const QString &className, const Answer &answer)
{
    m_answers[className] = answer;
}

bool CKvModalScript::eventFilter(QObject *watched, QEvent *event)
{
    auto *dialog = qobject_cast<QDialog *>(watched);
    if (dialog && event->type() == QEvent::Show && dialog->isModal()) {
        m_shown.append(QString::fromLatin1(dialog->metaObject()->className()));
        // The second turn is behind what the dialog itself does first.
        giveAnswerLater(*dialog, 2);
    }
    return QObject::eventFilter(watched, event);
}

void CKvModalScript::giveAnswerLater(QDialog &dialog, int turns)
{
    QTimer::singleShot(0, this, [this, shown = QPointer<QDialog>(&dialog), turns] {
        if (!shown || !shown->isVisible()) {
            return;
        }
        if (turns > 1 || QApplication::activeModalWidget() != shown) {
            giveAnswerLater(*shown, turns - 1);
            return;
        }
        giveAnswer(*shown);
    });
}

void CKvModalScript::giveAnswer(QDialog &dialog)
{
    const QString className = QString::fromLatin1(dialog.metaObject()->className());
    const auto found = m_answers.find(className);
    if (found == m_answers.end()) {
        ADD_FAILURE() << "nobody answers " << className.toStdString();
        dialog.reject();
        return;
    }
    found->second(dialog);
}

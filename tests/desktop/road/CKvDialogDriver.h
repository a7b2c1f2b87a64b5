// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

class QAbstractButton;
class QDialog;

/// Sits at the mouse: answers the modal dialogs of a desktop with clicks, and writes what they show
/// to the standard output, a line each.
///
/// In the verify dialog it does for each violation what its plan says: "fix", "ignore" or "next".
/// Behind the end of the plan everything is passed over; after the first summary it closes. A plan
/// that begins with "quit" tells so once the dialog is closed.
class CKvDialogDriver : public QObject
{
    Q_OBJECT

public:
    explicit CKvDialogDriver(QStringList plan);

signals:
    void finished();

private:
    void look();
    void answerVerification(QDialog &dialog);
    void answerSummary(QDialog &dialog);
    void answerViolationMessage(QDialog &dialog);
    /// Clicks from an event of its own: what a click opens may run an event loop, and this one's
    /// timer must go on meanwhile.
    void clickLater(QAbstractButton &button);
    static void say(const QString &line);

    QStringList m_plan;
    QTimer m_timer;
    bool m_hasSummary = false;
    bool m_quits = false;
    bool m_isClicking = false;
};

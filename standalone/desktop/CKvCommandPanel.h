// SPDX-License-Identifier: MIT
#pragma once

#include "CKvInput.h"

#include <QEventLoop>
#include <QStringList>
#include <QWidget>

#include <deque>

class CKvCommandEdit;
class CKvCommandLine;
class CKvCommandStack;
class QLabel;
class QPlainTextEdit;

/// The command line: what was said so far, the question that waits, the line to type in.
class CKvCommandPanel : public QWidget, public CKvInput
{
    Q_OBJECT

public:
    CKvCommandPanel(CKvCommandLine &commandLine, CKvCommandStack &stack, QWidget *parent = nullptr);
    ~CKvCommandPanel() override;

    /// Waits for the user in an event loop of its own.
    std::optional<QString> ask(const QString &prompt, Kind kind) override;
    bool isAsking() const { return m_loop != nullptr; }

    /// Runs a line as if it had been typed; a command that waits for an answer is broken off first.
    void enterCommand(const QString &line);
    /// Breaks the waiting command off.
    void cancel();
    /// Answers the waiting question.
    void answer(const QString &text);
    CKvCommandEdit *edit() const { return m_edit; }
    /// What was said so far.
    QString history() const;

signals:
    /// A command began, or ended, to wait for an answer.
    void askingChanged(bool isAsking);

private slots:
    void runWaiting();

private:
    void takeLine(const QString &line);
    void showPrompt(const QString &prompt);
    void updateCompletion();

    CKvCommandLine &m_commandLine;
    CKvCommandStack &m_stack;
    QPlainTextEdit *m_history;
    QLabel *m_prompt;
    CKvCommandEdit *m_edit;
    QEventLoop *m_loop = nullptr;
    std::optional<QString> m_answer;
    /// Lines of menus that wait until the command before is broken off.
    std::deque<QString> m_waiting;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvInput.h"
#include "OdEdCommand.h"
#include "OdResBuf.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <functional>

class CKvCommandStack;
class CKvEditor;
class CKvHostCommandContext;

/// Runs commands: what is typed, what a script feeds, what is posted. Reactors of the command stack
/// see each command begin and end; the command still counts as running when they hear of its end.
class CKvCommandLine : public QObject
{
    Q_OBJECT

public:
    enum class Outcome { Ended, Failed, Cancelled, Unknown };

    CKvCommandLine(CKvCommandStack &stack, CKvEditor &editor);
    ~CKvCommandLine() override;

    /// The one of the running session; null when there is none.
    static CKvCommandLine *current();

    /// @param contextOfActive gives the context that commands run in; never null.
    void setContext(std::function<CKvHostCommandContext *()> contextOfActive);
    /// @param input not owned; null when there is nobody to ask.
    void setInput(CKvInput *input) { m_input = input; }
    /// @param isIdle tells whether a posted command may run now; an empty one means always.
    void setIdleTest(std::function<bool()> isIdle) { m_isIdle = std::move(isIdle); }

    /// A line as the user or a script gives it: a command's name and what the command will ask for,
    /// set apart by blanks; a text in quotes counts as one word. An empty line repeats the last
    /// command, and one that begins with "(" is an expression.
    /// @throws what commands throw.
    Outcome enter(const QString &line);
    /// Runs a command by its name. The reactors have heard of its failure when it throws.
    Outcome run(const QString &name);
    /// Feeds the lines one after the other; commands find their answers in the lines that follow.
    /// Lines that begin with ";" are remarks.
    void runScript(const QStringList &lines);

    /// Queues a command until the host is idle.
    /// @param request from the name (type 5005) to the end mark (type 5000).
    void post(OdResBufPtr request);
    bool hasPosted() const { return !m_posted.empty(); }

    /// For commands: the next word or text that was given with the command, or what the user
    /// answers.
    /// @throws CKvCommandCancelled when the user breaks the command off, or there is nobody to ask.
    QString ask(const QString &prompt, CKvInput::Kind kind = CKvInput::Kind::Word);
    /// True when the next answer is there already.
    bool hasAnswer() const { return !m_lines.empty(); }
    /// For commands: tells something to the user.
    void print(const QString &text);

    /// A command, or a script, is in progress.
    bool isRunning() const { return m_running > 0; }
    bool isScriptRunning() const { return m_scripts > 0; }
    const QString &lastCommand() const { return m_lastCommand; }

signals:
    /// The reactors were told already.
    void commandStarted(const QString &name);
    void commandFinished(const QString &name);
    void printed(const QString &text);

private slots:
    void runPosted();

private:
    Outcome execute(OdEdCommand &command);
    void finish(OdEdCommand &command, CKvHostCommandContext &context, Outcome outcome);
    Outcome evaluate(const QString &expression);
    void runLines();
    QString takeAnswer(CKvInput::Kind kind);

    CKvCommandStack &m_stack;
    CKvEditor &m_editor;
    std::function<CKvHostCommandContext *()> m_context;
    std::function<bool()> m_isIdle;
    CKvInput *m_input = nullptr;
    /// What was given and not yet used; the front one may have lost its beginning.
    std::deque<QString> m_lines;
    std::deque<OdResBufPtr> m_posted;
    QTimer m_postTimer;
    QString m_lastCommand;
    int m_running = 0;
    int m_scripts = 0;
};

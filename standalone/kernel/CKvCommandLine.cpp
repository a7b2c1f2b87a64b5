// SPDX-License-Identifier: MIT
#include "CKvCommandLine.h"

#include "CKvCommandCancelled.h"
#include "CKvCommandStack.h"
#include "CKvEditor.h"
#include "CKvHostCommandContext.h"
#include "CKvHostDocument.h"
#include "CKvHostDocumentManager.h"
#include "OdEdCommandStackReactor.h"
#include "OdEdLispEngineReactor.h"
#include "lispCommands.h"
#include "takeWord.h"

#include <utility>

namespace
{

// Between two looks whether a posted command may run.
constexpr int kPostIntervalMs = 15;

CKvCommandLine *s_current = nullptr;

void endUndoSteps(const QString &name)
{
    if (const CKvHostDocumentManager *manager = CKvHostDocumentManager::current()) {
        for (const std::unique_ptr<CKvHostDocument> &document : manager->documents()) {
            document->undoStack().endStep(name);
        }
    }
}

/// Gives up the lines of a script, or of one entry, whatever happens.
class CKvLinesScope
{
public:
    explicit CKvLinesScope(std::deque<QString> &lines)
        : m_lines(lines)
        , m_before(std::exchange(lines, {}))
    {
    }
    ~CKvLinesScope() { m_lines = std::move(m_before); }
    CKvLinesScope(const CKvLinesScope &) = delete;
    CKvLinesScope &operator=(const CKvLinesScope &) = delete;

private:
    std::deque<QString> &m_lines;
    std::deque<QString> m_before;
};

/// Counts for as long as it lives.
class CKvCountScope
{
public:
    explicit CKvCountScope(int &count)
        : m_count(++count)
    {
    }
    ~CKvCountScope() { --m_count; }
    CKvCountScope(const CKvCountScope &) = delete;
    CKvCountScope &operator=(const CKvCountScope &) = delete;

private:
    int &m_count;
};

} // namespace

CKvCommandLine::CKvCommandLine(CKvCommandStack &stack, CKvEditor &editor)
    : m_stack(stack)
    , m_editor(editor)
{
    s_current = this;
    m_postTimer.setInterval(kPostIntervalMs);
    connect(&m_postTimer, &QTimer::timeout, this, &CKvCommandLine::runPosted);
}

CKvCommandLine::~CKvCommandLine()
{
    s_current = nullptr;
}

CKvCommandLine *CKvCommandLine::current()
{
    return s_current;
}

void CKvCommandLine::setContext(std::function<CKvHostCommandContext *()> contextOfActive)
{
    m_context = std::move(contextOfActive);
}

CKvCommandLine::Outcome CKvCommandLine::enter(const QString &line)
{
    if (line.trimmed().isEmpty()) {
        return m_lastCommand.isEmpty() ? Outcome::Ended : run(m_lastCommand);
    }
    if (line.trimmed().startsWith(QLatin1Char('('))) {
        return evaluate(line.trimmed());
    }
    const CKvLinesScope scope(m_lines);
    m_lines.push_back(line);
    const QString name = takeWord(m_lines.front());
    if (m_lines.front().trimmed().isEmpty()) {
        m_lines.pop_front();
    }
    return run(name);
}

void CKvCommandLine::runScript(const QStringList &lines)
{
    const CKvLinesScope scope(m_lines);
    for (const QString &line : lines) {
        if (!line.trimmed().startsWith(QLatin1Char(';'))) {
            m_lines.push_back(line);
        }
    }
    const CKvCountScope script(m_scripts);
    runLines();
}

void CKvCommandLine::runLines()
{
    while (!m_lines.empty()) {
        QString &line = m_lines.front();
        if (line.trimmed().isEmpty()) {
            // The end of the line before; only a line of its own is a bare Enter.
            m_lines.pop_front();
            continue;
        }
        if (line.trimmed().startsWith(QLatin1Char('('))) {
            const QString expression = line.trimmed();
            m_lines.pop_front();
            evaluate(expression);
            continue;
        }
        const QString name = takeWord(line);
        if (line.trimmed().isEmpty()) {
            m_lines.pop_front();
        }
        run(name);
    }
}

CKvCommandLine::Outcome CKvCommandLine::run(const QString &name)
{
    const OdSmartPtr<OdEdCommand> command = m_stack.find(name);
    if (!command) {
        CKvHostCommandContext *context = m_context();
        m_stack.tell([&](OdEdCommandStackReactor &reactor) {
            reactor.unknownCommand(OdString(name), context);
        });
        print(tr("Unknown command \"%1\".").arg(name.toUpper()));
        return Outcome::Unknown;
    }
    return execute(*command);
}

CKvCommandLine::Outcome CKvCommandLine::execute(OdEdCommand &command)
{
    // Kept: the command may close its document, or unload the module that it came with.
    const OdSmartPtr<OdEdCommand> kept(&command);
    const OdSmartPtr<CKvHostCommandContext> context(m_context());
    const QString name = command.localName().toQString();
    if (context->activeCommandDepth() == 0 && name != QLatin1String("INTERSTATEVERIFY")) {
        m_lastCommand = name;
    }
    if (m_running == 0) {
        endUndoSteps(QString());
    }
    context->enterCommand();
    ++m_running;
    m_stack.tell([&](OdEdCommandStackReactor &reactor) {
        reactor.commandWillStart(&command, context.get());
    });
    emit commandStarted(name);
    Outcome outcome = Outcome::Failed;
    try {
        outcome = command.execute(context.get()) == OdEdCommand::kNormal ? Outcome::Ended
                                                                         : Outcome::Failed;
    } catch (const CKvCommandCancelled &) {
        outcome = Outcome::Cancelled;
        print(tr("*Cancel*"));
    } catch (...) {
        // The reactors hear of the failure, the event loop shows it.
        finish(command, *context, Outcome::Failed);
        throw;
    }
    finish(command, *context, outcome);
    return outcome;
}

void CKvCommandLine::finish(OdEdCommand &command, CKvHostCommandContext &context, Outcome outcome)
{
    m_stack.tell([&](OdEdCommandStackReactor &reactor) {
        switch (outcome) {
        case Outcome::Ended:
            reactor.commandEnded(&command, &context);
            break;
        case Outcome::Cancelled:
            reactor.commandCancelled(&command, &context);
            break;
        case Outcome::Failed:
        case Outcome::Unknown:
            reactor.commandFailed(&command, &context);
            break;
        }
    });
    context.leaveCommand();
    --m_running;
    if (m_running == 0) {
        // All that an outermost command has changed, in whatever drawing, is one step.
        endUndoSteps(command.localName().toQString());
    }
    emit commandFinished(command.localName().toQString());
}

CKvCommandLine::Outcome CKvCommandLine::evaluate(const QString &expression)
{
    m_editor.tellLisp(
        [&](OdEdLispEngineReactor &reactor) { reactor.lispWillStart(OdString(expression)); });
    Outcome outcome = Outcome::Ended;
    try {
        for (const QStringList &words : lispCommands(expression)) {
            const CKvLinesScope scope(m_lines);
            for (int i = 1; i < words.size(); ++i) {
                m_lines.push_back(quoted(words[i]));
            }
            outcome = run(words.front());
            if (outcome == Outcome::Cancelled) {
                throw CKvCommandCancelled();
            }
        }
    } catch (const CKvCommandCancelled &) {
        m_editor.tellLisp([](OdEdLispEngineReactor &reactor) { reactor.lispCancelled(); });
        return Outcome::Cancelled;
    } catch (...) {
        // An expression that failed did not come to its end; what failed is shown by others.
        m_editor.tellLisp([](OdEdLispEngineReactor &reactor) { reactor.lispCancelled(); });
        throw;
    }
    m_editor.tellLisp([](OdEdLispEngineReactor &reactor) { reactor.lispEnded(); });
    return outcome;
}

QString CKvCommandLine::takeAnswer(CKvInput::Kind kind)
{
    QString &line = m_lines.front();
    QString answer = kind == CKvInput::Kind::Word ? takeWord(line) : unquoted(line.trimmed());
    if (kind == CKvInput::Kind::Text || line.trimmed().isEmpty()) {
        m_lines.pop_front();
    }
    return answer;
}

QString CKvCommandLine::ask(const QString &prompt, CKvInput::Kind kind)
{
    if (!m_lines.empty()) {
        return takeAnswer(kind);
    }
    const std::optional<QString> answer = m_input ? m_input->ask(prompt, kind) : std::nullopt;
    if (!answer) {
        throw CKvCommandCancelled();
    }
    return *answer;
}

void CKvCommandLine::print(const QString &text)
{
    emit printed(text);
}

void CKvCommandLine::post(OdResBufPtr request)
{
    m_posted.push_back(std::move(request));
    // At the next turn of the event loop, ahead of timers that are due: the one that looks for
    // changes would post again what waits already. While the host is busy, a look now and then.
    QMetaObject::invokeMethod(this, "runPosted", Qt::QueuedConnection);
    m_postTimer.start();
}

void CKvCommandLine::runPosted()
{
    if (isRunning() || isScriptRunning() || (m_isIdle && !m_isIdle())) {
        return;
    }
    if (m_posted.empty()) {
        m_postTimer.stop();
        return;
    }
    const OdResBufPtr request = m_posted.front();
    m_posted.pop_front();
    if (!request || request->restype() != OdResBuf::kRtString) {
        return;
    }
    const CKvLinesScope scope(m_lines);
    for (OdResBufPtr value = request->next(); value && value->restype() != OdResBuf::kRtEnd;
         value = value->next()) {
        m_lines.push_back(value->restype() == OdResBuf::kRtString
                              ? quoted(value->getString().toQString())
                              : QString::number(value->getInt16()));
    }
    run(request->getString().toQString());
}

// SPDX-License-Identifier: MIT
#include "CKvCommandPanel.h"

#include "CKvCommandEdit.h"
#include "CKvCommandLine.h"
#include "CKvCommandStack.h"
#include "runFromWidget.h"

#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QStringListModel>
#include <QTimer>

#include <utility>

namespace
{

constexpr int kMostHistoryLines = 2000;
constexpr int kHistoryLinesShown = 4;

} // namespace

CKvCommandPanel::CKvCommandPanel(CKvCommandLine &commandLine,
                                 CKvCommandStack &stack,
                                 QWidget *parent)
    : QWidget(parent)
    , m_commandLine(commandLine)
    , m_stack(stack)
    , m_history(new QPlainTextEdit(this))
    , m_prompt(new QLabel(this))
    , m_edit(new CKvCommandEdit(this))
{
    setObjectName(QStringLiteral("CommandPanel"));
    m_history->setObjectName(QStringLiteral("CommandHistory"));
    m_history->setAccessibleName(tr("Command history"));
    m_history->setReadOnly(true);
    m_history->setMaximumBlockCount(kMostHistoryLines);
    m_history->setTabChangesFocus(true);
    m_history->setFixedHeight(m_history->fontMetrics().lineSpacing() * kHistoryLinesShown + 12);
    m_edit->setObjectName(QStringLiteral("CommandEdit"));
    m_edit->setAccessibleName(tr("Command line"));
    m_edit->setCompleter(new QCompleter(new QStringListModel(m_edit), m_edit));
    m_edit->completer()->setCaseSensitivity(Qt::CaseInsensitive);
    m_prompt->setObjectName(QStringLiteral("CommandPrompt"));
    m_prompt->setBuddy(m_edit);
    auto *row = new QHBoxLayout;
    row->addWidget(m_prompt);
    row->addWidget(m_edit, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(4);
    column->addWidget(m_history);
    column->addLayout(row);
    showPrompt(QString());
    connect(m_edit, &CKvCommandEdit::entered, this, [this](const QString &line) {
        runFromWidget([&] { takeLine(line); });
    });
    connect(m_edit, &CKvCommandEdit::brokenOff, this, &CKvCommandPanel::cancel);
    connect(&m_commandLine, &CKvCommandLine::printed, this, [this](const QString &text) {
        m_history->appendPlainText(text);
    });
    m_commandLine.setInput(this);
}

CKvCommandPanel::~CKvCommandPanel()
{
    m_commandLine.setInput(nullptr);
}

QString CKvCommandPanel::history() const
{
    return m_history->toPlainText();
}

void CKvCommandPanel::showPrompt(const QString &prompt)
{
    m_prompt->setText(prompt.isEmpty() ? tr("Command:") : prompt);
    updateCompletion();
}

void CKvCommandPanel::updateCompletion()
{
    // Names of commands help only where a command is wanted.
    auto *names = static_cast<QStringListModel *>(m_edit->completer()->model());
    names->setStringList(isAsking() ? QStringList() : m_stack.names());
}

std::optional<QString> CKvCommandPanel::ask(const QString &prompt, Kind kind)
{
    QEventLoop loop;
    QEventLoop *before = std::exchange(m_loop, &loop);
    m_answer.reset();
    m_edit->setBlanksAllowed(kind == Kind::Text);
    showPrompt(prompt);
    m_edit->setFocus();
    emit askingChanged(true);
    loop.exec();
    m_loop = before;
    m_edit->setBlanksAllowed(false);
    showPrompt(QString());
    emit askingChanged(false);
    return std::exchange(m_answer, std::nullopt);
}

void CKvCommandPanel::answer(const QString &text)
{
    if (m_loop) {
        m_history->appendPlainText(QString(m_prompt->text() + QLatin1Char(' ') + text));
        m_answer = text;
        m_loop->quit();
    }
}

void CKvCommandPanel::cancel()
{
    if (m_loop) {
        m_answer.reset();
        m_loop->quit();
    }
}

void CKvCommandPanel::takeLine(const QString &line)
{
    if (m_loop) {
        answer(line);
        return;
    }
    m_history->appendPlainText(
        QString(tr("Command:") + QLatin1Char(' ')
                + (line.trimmed().isEmpty() ? m_commandLine.lastCommand() : line)));
    m_commandLine.enter(line);
    updateCompletion();
}

void CKvCommandPanel::enterCommand(const QString &line)
{
    if (!m_loop) {
        takeLine(line);
        return;
    }
    // The waiting command has to unwind first; then the line is the next thing to happen.
    m_waiting.push_back(line);
    cancel();
    QTimer::singleShot(0, this, SLOT(runWaiting()));
}

void CKvCommandPanel::runWaiting()
{
    if (!m_waiting.empty()) {
        const QString line = m_waiting.front();
        m_waiting.pop_front();
        enterCommand(line);
    }
}

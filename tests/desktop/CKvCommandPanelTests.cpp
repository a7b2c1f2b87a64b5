// SPDX-License-Identifier: MIT
#include "CKvCommandPanel.h"

#include "CKvCommandCancelled.h"
#include "CKvCommandEdit.h"
#include "CKvDesktopTest.h"
#include "CKvMainWindow.h"
#include "CKvTestApplication.h"
#include "OdError.h"

#include <QCompleter>
#include <QLabel>
#include <QTest>
#include <QTimer>

namespace
{

class CommandPanel : public CKvDesktopTest
{
protected:
    CommandPanel()
    {
        m_desktop->addCommand("PAIR", [this](CKvDesktop &desktop) {
            m_answers << desktop.commandLine().ask(text("First:"));
            m_answers << desktop.commandLine().ask(text("Rest:"), CKvInput::Kind::Text);
            return true;
        });
        m_desktop->addCommand("COUNT", [this](CKvDesktop &) {
            ++m_count;
            return true;
        });
    }
    CKvCommandEdit &edit() { return *window().panel().edit(); }
    void type(const char *keys) { QTest::keyClicks(&edit(), text(keys)); }
    void press(Qt::Key key) { QTest::keyClick(&edit(), key); }
    /// Runs once a command waits for an answer.
    void whenAsked(const std::function<void()> &action)
    {
        QTimer::singleShot(0, &window(), action);
    }

    QStringList m_answers;
    int m_count = 0;
};

} // namespace

TEST_F(CommandPanel, EnterAndSpaceEndACommandsName)
{
    type("COUNT");
    press(Qt::Key_Return);
    type("count ");

    EXPECT_EQ(m_count, 2);
    EXPECT_TRUE(edit().text().isEmpty());
    EXPECT_EQ(window().panel().history(), text("Command: COUNT\nCommand: count"));
}

TEST_F(CommandPanel, AnEmptyEnterRepeatsTheLastCommandAndSaysWhich)
{
    type("COUNT ");
    press(Qt::Key_Return);
    press(Qt::Key_Space);

    EXPECT_EQ(m_count, 3);
    EXPECT_EQ(window().panel().history(), text("Command: COUNT\nCommand: COUNT\nCommand: COUNT"));
}

TEST_F(CommandPanel, ACommandWaitsForItsAnswers)
{
    QStringList prompts;
    auto *prompt = child<QLabel>(window(), "CommandPrompt");
    whenAsked([&] {
        prompts << prompt->text();
        QTimer::singleShot(0, &window(), [&] {
            prompts << prompt->text();
            type("two words");
            press(Qt::Key_Return);
        });
        type("one ");
    });

    type("PAIR ");

    EXPECT_EQ(m_answers, list({ "one", "two words" }));
    EXPECT_EQ(prompts, list({ "First:", "Rest:" }));
    EXPECT_EQ(prompt->text(), text("Command:"));
}

TEST_F(CommandPanel, EscapeBreaksAWaitingCommandOff)
{
    whenAsked([&] { press(Qt::Key_Escape); });

    type("PAIR ");

    EXPECT_EQ(m_answers, QStringList());
    EXPECT_EQ(said(), list({ "*Cancel*" }));
    EXPECT_FALSE(window().panel().isAsking());
}

TEST_F(CommandPanel, WhatATypedCommandThrowsIsToldByTheEventLoop)
{
    m_desktop->addCommand("BREAK", [](CKvDesktop &) -> bool { throw OdError_InvalidIndex(); });

    type("BREAK ");
    type("COUNT ");
    QCoreApplication::sendPostedEvents(QCoreApplication::instance());

    EXPECT_EQ(CKvTestApplication::instance()->takeFailures(),
              std::vector<std::string> { "The index is outside the array." });
    EXPECT_EQ(m_count, 1);
}

TEST_F(CommandPanel, AMenuEntryBreaksAWaitingCommandOffAndRunsThen)
{
    whenAsked([&] { enter("COUNT"); });

    type("PAIR ");
    QTest::qWait(0);
    QCoreApplication::processEvents();

    EXPECT_EQ(m_answers, QStringList());
    EXPECT_EQ(m_count, 1);
}

TEST_F(CommandPanel, ArrowKeysBringBackWhatWasTyped)
{
    type("COUNT ");
    type("ZOOMX ");

    press(Qt::Key_Up);
    const QString last = edit().text();
    press(Qt::Key_Up);
    const QString first = edit().text();
    press(Qt::Key_Up);
    const QString before = edit().text();
    press(Qt::Key_Down);
    press(Qt::Key_Down);

    EXPECT_EQ(last, text("ZOOMX"));
    EXPECT_EQ(first, text("COUNT"));
    EXPECT_EQ(before, text("COUNT"));
    EXPECT_EQ(edit().text(), QString());
}

TEST_F(CommandPanel, NamesOfCommandsAreCompletedButNotAnswers)
{
    const auto completions = [&](const char *prefix) {
        edit().completer()->setCompletionPrefix(text(prefix));
        QStringList found;
        for (int row = 0; edit().completer()->setCurrentRow(row); ++row) {
            found << edit().completer()->currentCompletion();
        }
        return found;
    };
    type("COUNT ");
    QStringList whileAsked;
    whenAsked([&] {
        whileAsked = completions("sav");
        press(Qt::Key_Escape);
    });

    EXPECT_EQ(completions("sav"), list({ "SAVE", "SAVEAS" }));
    type("PAIR ");

    EXPECT_EQ(whileAsked, QStringList());
}

TEST_F(CommandPanel, ATextInQuotesGoesOnBehindABlank)
{
    type("PAIR");
    QTest::keyClicks(&edit(), text("\"a b\""));

    EXPECT_EQ(edit().text(), text("PAIR\"a b\""));
}

// SPDX-License-Identifier: MIT
#include "CKvCommandLine.h"

#include "CKvCommandCancelled.h"
#include "CKvEventLog.h"
#include "CKvExpressionParserData.h"
#include "CKvScriptedCommand.h"
#include "CKvSession.h"
#include "OdError.h"
#include "list.h"

#include <QEventLoop>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

OdResBufPtr request(const char *name)
{
    OdResBufPtr head = OdResBuf::newRb(OdResBuf::kRtString);
    head->setString(OdString(name));
    head->setNext(OdResBuf::newRb(OdResBuf::kRtEnd));
    return head;
}

class CommandLine : public testing::Test
{
protected:
    CommandLine()
    {
        m_session.editor().addReactor(&m_log);
        add(m_asking);
        add(m_plain);
        m_log.events.clear();
    }
    ~CommandLine() override
    {
        m_session.editor().removeReactor(&m_log);
        for (OdEdCommand *command : m_added) {
            m_session.commands().removeCommand(command);
        }
    }
    void add(CKvScriptedCommand &command)
    {
        m_session.commands().addCommand(&command);
        m_added.push_back(&command);
    }
    CKvCommandLine &line() { return m_session.commandLine(); }
    /// Until nothing that was posted waits, or so many rounds have passed.
    void runPosted()
    {
        QEventLoop loop;
        for (int i = 0; i < 200 && line().hasPosted(); ++i) {
            QTimer::singleShot(5, &loop, &QEventLoop::quit);
            loop.exec();
        }
    }

    QTemporaryDir m_folder;
    CKvSession m_session { m_folder.filePath(QStringLiteral("settings.ini")) };
    CKvEventLog m_log;
    QStringList m_answers;
    std::vector<OdEdCommand *> m_added;
    CKvScriptedCommand m_plain { QStringLiteral("PLAIN") };
    CKvScriptedCommand m_asking { QStringLiteral("ASKING"), [this](CKvCommandContext *) {
                                     m_answers << line().ask(text("First:"));
                                     m_answers << line().ask(text("Rest:"), CKvInput::Kind::Text);
                                     return OdEdCommand::kNormal;
                                 } };
};

} // namespace

TEST_F(CommandLine, ACommandStillCountsWhenReactorsHearOfItsEnd)
{
    EXPECT_EQ(line().enter(text("PLAIN")), CKvCommandLine::Outcome::Ended);

    EXPECT_EQ(m_log.events, list({ "start _PLAIN 1", "end _PLAIN 1" }));
}

TEST_F(CommandLine, NamesAreFoundInAnyCaseWithAndWithoutUnderscore)
{
    line().enter(text("plain"));
    line().enter(text("_Plain"));

    EXPECT_EQ(m_log.events.size(), 4);
}

TEST_F(CommandLine, AnUnknownNameIsToldAndStartsNothing)
{
    QStringList printed;
    QObject::connect(
        &line(), &CKvCommandLine::printed, [&](const QString &said) { printed << said; });

    EXPECT_EQ(line().enter(text("nonsense")), CKvCommandLine::Outcome::Unknown);

    EXPECT_EQ(m_log.events, list({ "unknown nonsense" }));
    EXPECT_EQ(printed, list({ "Unknown command \"NONSENSE\"." }));
}

TEST_F(CommandLine, AnswersFollowTheName)
{
    line().enter(text("ASKING \"two words\" and the rest"));

    EXPECT_EQ(m_answers, list({ "two words", "and the rest" }));
}

TEST_F(CommandLine, ACommandWithNobodyToAskIsCancelled)
{
    EXPECT_EQ(line().enter(text("ASKING one")), CKvCommandLine::Outcome::Cancelled);

    EXPECT_EQ(m_answers, list({ "one" }));
    EXPECT_EQ(m_log.events, list({ "start _ASKING 1", "cancelled _ASKING 1" }));
}

TEST_F(CommandLine, AResultOfFailureIsAFailedCommand)
{
    CKvScriptedCommand failing(text("FAILING"),
                               [](CKvCommandContext *) { return OdEdCommand::kFailed; });
    add(failing);
    m_log.events.clear();

    EXPECT_EQ(line().enter(text("FAILING")), CKvCommandLine::Outcome::Failed);

    EXPECT_EQ(m_log.events, list({ "start _FAILING 1", "failed _FAILING 1" }));
    m_session.commands().removeCommand(&failing);
}

TEST_F(CommandLine, WhatACommandThrowsPassesThroughAfterTheReactorsHeard)
{
    CKvScriptedCommand throwing(text("THROWING"),
                                [](CKvCommandContext *) -> int { throw OdError_InvalidIndex(); });
    add(throwing);
    m_log.events.clear();

    EXPECT_THROW(line().enter(text("THROWING")), OdError_InvalidIndex);

    EXPECT_EQ(m_log.events, list({ "start _THROWING 1", "failed _THROWING 1" }));
    EXPECT_EQ(line().enter(text("PLAIN")), CKvCommandLine::Outcome::Ended);
    EXPECT_EQ(m_log.events.last(), text("end _PLAIN 1"));
    m_session.commands().removeCommand(&throwing);
}

TEST_F(CommandLine, ANestedCommandCountsTwice)
{
    CKvScriptedCommand outer(text("OUTER"), [this](CKvCommandContext *) {
        line().run(text("PLAIN"));
        return OdEdCommand::kNormal;
    });
    add(outer);
    m_log.events.clear();

    line().enter(text("OUTER"));

    EXPECT_EQ(m_log.events,
              list({ "start _OUTER 1", "start _PLAIN 2", "end _PLAIN 2", "end _OUTER 1" }));
    m_session.commands().removeCommand(&outer);
}

TEST_F(CommandLine, AnEmptyLineRepeatsTheLastOutermostCommand)
{
    line().enter(text("PLAIN"));
    line().enter(QString());
    line().enter(text("  "));

    EXPECT_EQ(m_log.events.count(text("start _PLAIN 1")), 3);
}

TEST_F(CommandLine, AScriptFeedsCommandsAndTheirAnswers)
{
    line().runScript(list({ "; a remark", "ASKING", "one", "two three", "PLAIN ASKING 4 five" }));

    EXPECT_EQ(m_answers, list({ "one", "two three", "4", "five" }));
    EXPECT_EQ(m_log.events,
              list({ "start _ASKING 1",
                     "end _ASKING 1",
                     "start _PLAIN 1",
                     "end _PLAIN 1",
                     "start _ASKING 1",
                     "end _ASKING 1" }));
}

TEST_F(CommandLine, APostedCommandRunsOnceTheHostIsIdle)
{
    bool isIdle = false;
    line().setIdleTest([&] { return isIdle; });
    line().post(request("_PLAIN"));

    QEventLoop loop;
    QTimer::singleShot(60, &loop, &QEventLoop::quit);
    loop.exec();
    const QStringList before = m_log.events;
    isIdle = true;
    runPosted();

    EXPECT_EQ(before, QStringList());
    EXPECT_EQ(m_log.events, list({ "start _PLAIN 1", "end _PLAIN 1" }));
}

TEST_F(CommandLine, APostedCommandWaitsForTheRunningOne)
{
    CKvScriptedCommand outer(text("OUTER"), [this](CKvCommandContext *) {
        line().post(request("_PLAIN"));
        QEventLoop loop;
        QTimer::singleShot(60, &loop, &QEventLoop::quit);
        loop.exec();
        return OdEdCommand::kNormal;
    });
    add(outer);
    m_log.events.clear();

    line().enter(text("OUTER"));
    runPosted();

    EXPECT_EQ(m_log.events,
              list({ "start _OUTER 1", "end _OUTER 1", "start _PLAIN 1", "end _PLAIN 1" }));
    m_session.commands().removeCommand(&outer);
}

TEST_F(CommandLine, AnExpressionIsToldAroundItsCommands)
{
    line().enter(text("(progn (command \"PLAIN\") (command \"ASKING\" \"a b\" 2))"));

    EXPECT_EQ(m_answers, list({ "a b", "2" }));
    EXPECT_EQ(m_log.events,
              list({ "lisp (progn (command \"PLAIN\") (command \"ASKING\" \"a b\" 2))",
                     "start _PLAIN 1",
                     "end _PLAIN 1",
                     "start _ASKING 1",
                     "end _ASKING 1",
                     "lisp ended" }));
}

TEST_F(CommandLine, AnExpressionWhoseCommandIsCancelledIsCancelled)
{
    line().enter(text("(command \"ASKING\")"));

    EXPECT_EQ(m_log.events.last(), text("lisp cancelled"));
}

TEST_F(CommandLine, AnExpressionThatCanNotBeReadThrows)
{
    for (const char *wrong : { "(command \"PLAIN\"", "(command)", "(+ 1 2)", "(progn", "()" }) {
        EXPECT_THROW(line().enter(text(wrong)), OdError) << wrong;
        EXPECT_EQ(m_log.events.last(), text("lisp cancelled")) << wrong;
    }
}

TEST_F(CommandLine, ACommandOfATakenNameIsRefused)
{
    CKvScriptedCommand other(text("plain"));

    EXPECT_THROW(m_session.commands().addCommand(&other), OdError);
    EXPECT_EQ(m_session.commands().names(), list({ "ASKING", "PLAIN" }));
}

TEST_F(CommandLine, AReactorThatIsAddedTwiceHearsOnceAndNothingOnceItIsGone)
{
    m_session.editor().addReactor(&m_log);
    line().enter(text("PLAIN"));
    EXPECT_EQ(m_log.events.size(), 2);

    m_session.editor().removeReactor(&m_log);
    line().enter(text("PLAIN"));
    line().enter(text("(command \"PLAIN\")"));

    EXPECT_EQ(m_log.events.size(), 2);
}

TEST_F(CommandLine, ARequestThatNobodyTakesRunsTheCommandOfThatName)
{
    CKvExpressionParserData data;

    m_session.evaluateExpression(data, request("_PLAIN"));

    EXPECT_EQ(m_log.events, list({ "start _PLAIN 1", "end _PLAIN 1" }));
    EXPECT_TRUE(data.failure().isEmpty());
}

TEST_F(CommandLine, ARequestIsHandedToWhoTakesIt)
{
    std::int16_t number = 0;
    m_session.setRequest(text("_Settings"), [&](const OdResBufPtr &arguments) {
        number = arguments->getInt16();
        return OdResBufPtr();
    });
    OdResBufPtr chain = request("_SETTINGS");
    OdResBufPtr value = OdResBuf::newRb(OdResBuf::kRtInt16);
    value->setInt16(3);
    chain->insert(value);
    CKvExpressionParserData data;

    m_session.evaluateExpression(data, chain);

    EXPECT_EQ(number, 3);
    EXPECT_EQ(m_log.events, QStringList());
}

TEST_F(CommandLine, ARequestOfNoNameOrAnUnknownOneTellsSo)
{
    CKvExpressionParserData unknown;
    CKvExpressionParserData empty;

    m_session.evaluateExpression(unknown, request("_NOTHING"));
    m_session.evaluateExpression(empty, OdResBufPtr());

    EXPECT_EQ(unknown.failure(), CKvString("There is no command or function \"_NOTHING\"."));
    EXPECT_EQ(empty.failure(), CKvString("The request has no name."));
}

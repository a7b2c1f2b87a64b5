// SPDX-License-Identifier: MIT
#include "CKvSession.h"

#include "CKvExpressionParserData.h"
#include "CKvHostDocument.h"
#include "findSupportFile.h"
#include "takeWord.h"

#include <utility>

namespace
{

CKvSession *s_session = nullptr;

/// What follows the name of a request as words of a command line.
QStringList wordsOf(OdResBufPtr value)
{
    QStringList words;
    for (; value && value->restype() != OdResBuf::kRtEnd; value = value->next()) {
        words << (value->restype() == OdResBuf::kRtString ? quoted(value->getString().toQString())
                                                          : QString::number(value->getInt16()));
    }
    return words;
}

} // namespace

OdEdCommandStackPtr odedRegCmds()
{
    return s_session ? OdEdCommandStackPtr(&s_session->commands()) : OdEdCommandStackPtr();
}

OdEditor *odedEditor()
{
    return s_session ? &s_session->editor() : nullptr;
}

CKvSession *CKvSession::current()
{
    return s_session;
}

CKvSession::CKvSession(const QString &settingsFile)
    : m_before(GetKvSystemServices())
    , m_settings(settingsFile)
    , m_editor(m_stack)
    , m_emptyContext(nullptr)
    , m_commandLine(m_stack, m_editor)
{
    m_commandLine.setContext([this] {
        CKvHostDocument *document = m_documents.active();
        return document ? document->commandContext() : &m_emptyContext;
    });
    s_session = this;
    SetKvSystemServices(this);
}

CKvSession::~CKvSession()
{
    while (!m_documents.documents().empty()) {
        m_documents.close(*m_documents.documents().back());
    }
    m_modules.unloadAll();
    SetKvSystemServices(m_before);
    s_session = nullptr;
}

CKvString
CKvSession::findFile(const CKvString &name, int /*hint*/, OdDbDatabase *database, int /*flags*/)
{
    return CKvString(findSupportFile(name.toQString(), database, m_settings.supportPaths()));
}

void CKvSession::setRequest(const QString &name, Request request)
{
    if (request) {
        m_requests[name.toUpper()] = std::move(request);
    } else {
        m_requests.erase(name.toUpper());
    }
}

OdResBufPtr CKvSession::evaluateExpression(CKvExpressionParserData &data, OdResBufPtr request)
{
    if (!request || request->restype() != OdResBuf::kRtString) {
        data.setFailure(CKvString("The request has no name."));
        return {};
    }
    const QString name = request->getString().toQString();
    const auto found = m_requests.find(name.toUpper());
    if (found != m_requests.end()) {
        return found->second(request->next());
    }
    if (!m_stack.find(name)) {
        data.setFailure(
            CKvString(QStringLiteral("There is no command or function \"%1\".").arg(name)));
        return {};
    }
    m_commandLine.enter((QStringList(name) + wordsOf(request->next())).join(QLatin1Char(' ')));
    return {};
}

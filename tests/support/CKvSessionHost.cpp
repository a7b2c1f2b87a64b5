// SPDX-License-Identifier: MIT
#include "CKvSessionHost.h"

#include "CKvDatabase.h"
#include "CKvDocument.h"

#include <algorithm>

namespace
{

std::string chainText(const OdResBufPtr &chain)
{
    std::string text;
    for (OdResBufPtr buffer = chain; buffer; buffer = buffer->next()) {
        text += ' ' + std::to_string(buffer->restype());
        if (buffer->restype() == OdResBuf::kRtString) {
            text += '=' + buffer->getString().toQString().toStdString();
        } else if (buffer->restype() == OdResBuf::kRtInt16) {
            text += '=' + std::to_string(buffer->getInt16());
        }
    }
    return text;
}

} // namespace

std::vector<std::string> CKvSessionHost::callsOf(const std::string &word) const
{
    std::vector<std::string> found;
    std::copy_if(calls().begin(),
                 calls().end(),
                 std::back_inserter(found),
                 [&](const std::string &call) { return call.compare(0, word.size(), word) == 0; });
    return found;
}

CKvApplicationFrame *CKvSessionHost::applicationFrame()
{
    return m_hasWindows ? this : nullptr;
}

CKvDocumentManager *CKvSessionHost::documentManager()
{
    return m_hasWindows ? this : nullptr;
}

OdResBufPtr CKvSessionHost::evaluateExpression(CKvExpressionParserData & /*data*/,
                                               OdResBufPtr request)
{
    note("evaluate" + chainText(request));
    if (m_action) {
        m_action();
    }
    return {};
}

void CKvSessionHost::postCommand(OdResBufPtr request)
{
    note("post" + chainText(request));
    if (m_postAction) {
        m_postAction();
    }
}

CKvDocument *CKvSessionHost::documentForDatabase(OdDbDatabase *database)
{
    CKvDocument *document = m_knowsDocuments ? ACTIVE_DOCUMENT() : nullptr;
    return document && document->GetKvDatabase() == database ? document : nullptr;
}

void CKvSessionHost::addDocumentReactor(CKvDocumentManagerReactor *reactor)
{
    m_reactors.push_back(reactor);
}

void CKvSessionHost::removeDocumentReactor(CKvDocumentManagerReactor *reactor)
{
    m_reactors.erase(std::remove(m_reactors.begin(), m_reactors.end(), reactor), m_reactors.end());
}

// SPDX-License-Identifier: MIT
#include "CKvHostDocumentManager.h"

#include "CKvDocumentManagerReactor.h"
#include "CKvHostDocument.h"
#include "CKvString.h"
#include "tellReactors.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace
{

CKvHostDocumentManager *s_current = nullptr;

} // namespace

CKvDocument *ACTIVE_DOCUMENT()
{
    return s_current ? s_current->active() : nullptr;
}

CKvHostDocumentManager *CKvHostDocumentManager::current()
{
    return s_current;
}

CKvHostDocumentManager::CKvHostDocumentManager()
{
    s_current = this;
}

CKvHostDocumentManager::~CKvHostDocumentManager()
{
    while (!m_documents.empty()) {
        close(*m_documents.back());
    }
    s_current = nullptr;
}

CKvHostDocument *CKvHostDocumentManager::find(const OdDbDatabase *database) const
{
    for (const std::unique_ptr<CKvHostDocument> &document : m_documents) {
        if (database && document->GetKvDatabase() == database) {
            return document.get();
        }
    }
    return nullptr;
}

CKvDocument *CKvHostDocumentManager::documentForDatabase(OdDbDatabase *database)
{
    return find(database);
}

CKvHostDocument *CKvHostDocumentManager::findByPath(const QString &path) const
{
    const QString wanted = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    for (const std::unique_ptr<CKvHostDocument> &document : m_documents) {
        if (document->path() == wanted) {
            return document.get();
        }
    }
    return nullptr;
}

void CKvHostDocumentManager::addDocumentReactor(CKvDocumentManagerReactor *reactor)
{
    if (reactor && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end()) {
        m_reactors.push_back(reactor);
    }
}

void CKvHostDocumentManager::removeDocumentReactor(CKvDocumentManagerReactor *reactor)
{
    m_reactors.erase(std::remove(m_reactors.begin(), m_reactors.end(), reactor), m_reactors.end());
}

void CKvHostDocumentManager::tell(const std::function<void(CKvDocumentManagerReactor &)> &action)
{
    tellReactors(m_reactors, action);
}

CKvHostDocument &CKvHostDocumentManager::open(const QString &path)
{
    if (CKvHostDocument *document = findByPath(path)) {
        activate(*document);
        return *document;
    }
    constexpr int kForWriting = 1;
    constexpr int kByContent = 0;
    tell([&](auto &reactor) {
        reactor.DocumentPreOpen(nullptr, CKvString(path), kForWriting, kByContent);
        reactor.DocumentCreateStarted(nullptr);
    });
    std::unique_ptr<CKvHostDocument> document;
    try {
        document = CKvHostDocument::open(path);
    } catch (...) {
        // Who heard of the start must hear that nothing came of it.
        tell([&](auto &reactor) { reactor.DocumentCreateCanceled(nullptr); });
        throw;
    }
    return enter(std::move(document));
}

CKvHostDocument &CKvHostDocumentManager::openNew(const QString &templatePath)
{
    const QString title = QStringLiteral("Drawing%1.dxf").arg(m_newDrawings + 1);
    std::unique_ptr<CKvHostDocument> document = CKvHostDocument::fromTemplate(templatePath, title);
    ++m_newDrawings;
    tell([&](auto &reactor) { reactor.DocumentCreateStarted(document.get()); });
    return enter(std::move(document));
}

CKvHostDocument &CKvHostDocumentManager::enter(std::unique_ptr<CKvHostDocument> document)
{
    CKvHostDocument &entered = *m_documents.emplace_back(std::move(document));
    tell([&](auto &reactor) { reactor.DatabaseAttached(&entered); });
    tell([&](auto &reactor) { reactor.DocumentCreated(&entered); });
    activate(entered);
    return entered;
}

void CKvHostDocumentManager::activate(CKvHostDocument &document)
{
    if (m_active == &document) {
        return;
    }
    if (m_active) {
        tell([&](auto &reactor) { reactor.DocumentToBeDeactivated(m_active); });
    }
    tell([&](auto &reactor) { reactor.DocumentToBeActivated(&document); });
    m_active = &document;
    tell([&](auto &reactor) { reactor.DocumentActivated(&document); });
    tell([&](auto &reactor) { reactor.DocumentBecameCurrent(&document); });
}

void CKvHostDocumentManager::close(CKvHostDocument &document)
{
    const auto place = std::find_if(m_documents.begin(), m_documents.end(), [&](const auto &other) {
        return other.get() == &document;
    });
    if (place == m_documents.end()) {
        return;
    }
    const bool wasActive = m_active == &document;
    if (wasActive) {
        tell([&](auto &reactor) { reactor.DocumentToBeDeactivated(&document); });
    }
    tell([&](auto &reactor) { reactor.DocumentToBeDestroyed(&document); });
    tell([&](auto &reactor) { reactor.DatabaseDetached(&document); });
    const auto at = std::size_t(place - m_documents.begin());
    std::unique_ptr<CKvHostDocument> leaving = std::move(*place);
    m_documents.erase(place);
    if (wasActive) {
        m_active = nullptr;
    }
    // Nobody finds it any more; it stays until all heard, so that its address is nobody else's.
    tell([&](auto &reactor) { reactor.DocumentDestroyed(leaving.get()); });
    leaving.reset();
    if (wasActive && !m_documents.empty()) {
        activate(*m_documents[std::min(at, m_documents.size() - 1)]);
    } else if (wasActive) {
        tell([&](auto &reactor) { reactor.DocumentBecameCurrent(nullptr); });
    }
}

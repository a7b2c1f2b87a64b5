// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDocumentManager.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class CKvHostDocument;

/// The open documents, one of which is active while there is any. Reactors hear of each step.
class CKvHostDocumentManager : public CKvDocumentManager
{
public:
    CKvHostDocumentManager();
    ~CKvHostDocumentManager() override;
    CKvHostDocumentManager(const CKvHostDocumentManager &) = delete;
    CKvHostDocumentManager &operator=(const CKvHostDocumentManager &) = delete;

    CKvDocument *documentForDatabase(OdDbDatabase *database) override;
    void addDocumentReactor(CKvDocumentManagerReactor *reactor) override;
    void removeDocumentReactor(CKvDocumentManagerReactor *reactor) override;

    /// The one that lives; null when none does.
    static CKvHostDocumentManager *current();
    CKvHostDocument *find(const OdDbDatabase *database) const;
    /// The document of that file, null when it is not open.
    CKvHostDocument *findByPath(const QString &path) const;
    const std::vector<std::unique_ptr<CKvHostDocument>> &documents() const { return m_documents; }
    CKvHostDocument *active() const { return m_active; }

    /// Opens a drawing and makes it active. One that is open already becomes active.
    /// @throws CKvDxfError; no document has come then.
    CKvHostDocument &open(const QString &path);
    /// Opens a new drawing from a template and makes it active.
    CKvHostDocument &openNew(const QString &templatePath);
    /// Ends a document, saved or not. Another one becomes active.
    void close(CKvHostDocument &document);
    void activate(CKvHostDocument &document);

private:
    CKvHostDocument &enter(std::unique_ptr<CKvHostDocument> document);
    void tell(const std::function<void(CKvDocumentManagerReactor &)> &action);

    std::vector<std::unique_ptr<CKvHostDocument>> m_documents;
    CKvHostDocument *m_active = nullptr;
    std::vector<CKvDocumentManagerReactor *> m_reactors;
    int m_newDrawings = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingBuilder.h"
#include "CKvHostDocument.h"
#include "CKvHostDocumentManager.h"

#include <QStringList>
#include <QTemporaryDir>

/// The document that a user works in: a file in a folder of its own, open. ACTIVE_DOCUMENT gives it
/// while it lives.
class CKvTestDocument
{
public:
    explicit CKvTestDocument(const CKvDrawingBuilder &drawing);
    /// Copies these files into the folder and opens the first.
    explicit CKvTestDocument(const QStringList &paths);

    CKvDatabase *GetKvDatabase() const { return m_documents.active()->GetKvDatabase(); }
    const QString &path() const { return m_documents.active()->path(); }

private:
    QTemporaryDir m_folder;
    CKvHostDocumentManager m_documents;
};

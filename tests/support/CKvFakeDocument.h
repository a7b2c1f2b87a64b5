// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDatabase.h"
#include "CKvDocument.h"
#include "CKvDrawingBuilder.h"

/// The document that a user works in: ACTIVE_DOCUMENT gives it while it lives.
class CKvFakeDocument : public CKvDocument
{
public:
    explicit CKvFakeDocument(const CKvDrawingBuilder &drawing);
    /// @param bytes a DXF file.
    CKvFakeDocument(const QByteArray &bytes, const QString &path);
    ~CKvFakeDocument() override;
    CKvFakeDocument(const CKvFakeDocument &) = delete;
    CKvFakeDocument &operator=(const CKvFakeDocument &) = delete;

    CKvDatabase *GetKvDatabase() const override { return m_database.get(); }
    CKvCommandContext *commandContext() const override { return nullptr; }
    bool isDocumentBusy() const override { return false; }
    CKvSelectionSet *selectionSet() const override { return nullptr; }

private:
    CKvDatabasePtr m_database;
    CKvDocument *m_before;
};

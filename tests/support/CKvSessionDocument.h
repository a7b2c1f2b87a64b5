// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommandContext.h"
#include "CKvDatabase.h"
#include "CKvDocument.h"
#include "CKvDrawingBuilder.h"
#include "CKvSelectionSetImpl.h"
#include "OdStaticRxObject.h"

#include <QString>

#include <memory>

/// An open document whose state the test makes up. It is the active one while it lives, unless the
/// test makes another one active.
class CKvSessionDocument : public CKvDocument
{
public:
    /// @param name the drawing's file.
    explicit CKvSessionDocument(const CKvDrawingBuilder &drawing,
                                const QString &name = QStringLiteral("drawing.dxf"));
    ~CKvSessionDocument() override;
    CKvSessionDocument(const CKvSessionDocument &) = delete;
    CKvSessionDocument &operator=(const CKvSessionDocument &) = delete;

    CKvDatabase *GetKvDatabase() const override { return hasDatabase ? m_database.get() : nullptr; }
    CKvCommandContext *commandContext() const override { return m_context.get(); }
    bool isDocumentBusy() const override { return isBusy; }
    CKvSelectionSet *selectionSet() const override;

    /// Gives a layer that the drawing has another colour, as an edit would.
    void changeLayer(const char *name, int color) const;
    OdDbObjectId layer(const char *name) const;

    bool hasDatabase = true;
    bool isBusy = false;
    bool hasSelection = true;
    int commandDepth = 0;
    bool isSuspended = false;
    bool isScript = false;
    /// What "STANDARDSVIOLATION" is set to.
    int notification = 1;
    OdDbObjectIdArray selected;
    /// How often the selection was cleared.
    int clearedSelections = 0;

private:
    class CKvContext;
    class CKvSelection;
    class CKvVariables;

    CKvDatabasePtr m_database;
    std::unique_ptr<CKvCommandContext> m_context;
    std::unique_ptr<CKvSelectionSet> m_selection;
    CKvDocument *m_before;
};

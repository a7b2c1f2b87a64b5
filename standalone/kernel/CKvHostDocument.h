// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDatabase.h"
#include "CKvDocument.h"
#include "CKvDocumentSelection.h"
#include "CKvFileIdentity.h"
#include "CKvHostCommandContext.h"
#include "CKvUndoStack.h"

#include <QLockFile>
#include <QString>

#include <memory>
#include <optional>

/// An open drawing of this host: its file, its command line, what is selected in it.
class CKvHostDocument : public CKvDocument
{
public:
    /// What stands in the way of overwriting a file.
    enum class Hindrance { None, ChangedOnDisk, OpenElsewhere };

    /// Opens a file, a packed one and a DWG file too (CKvDrawingFile::open).
    /// @throws CKvDxfError with file, line and reason.
    static std::unique_ptr<CKvHostDocument> open(const QString &path);
    /// A new drawing with the contents of another, without a file.
    /// @throws CKvDxfError as open.
    static std::unique_ptr<CKvHostDocument> fromTemplate(const QString &path, const QString &title);
    ~CKvHostDocument() override;
    CKvHostDocument(const CKvHostDocument &) = delete;
    CKvHostDocument &operator=(const CKvHostDocument &) = delete;

    CKvDatabase *GetKvDatabase() const override { return m_database.get(); }
    CKvHostCommandContext *commandContext() const override { return m_context.get(); }
    bool isDocumentBusy() const override { return m_busy > 0; }
    CKvDocumentSelection *selectionSet() const override { return m_selection.get(); }

    /// Full path of the file; empty for a new drawing.
    const QString &path() const { return m_path; }
    /// False for a drawing that has no file yet and one that was read from a DWG file: saving it
    /// needs another name.
    bool hasWritableFile() const;
    /// What the user knows the drawing by.
    QString title() const;
    /// True when something was changed that was not saved.
    bool isModified() const { return m_undo->isModified(); }
    CKvUndoStack &undoStack() const { return *m_undo; }

    /// Whether saving to this path would lose somebody else's work.
    Hindrance hindranceTo(const QString &path) const;
    /// Writes the drawing, which stands for that file from then on.
    /// @throws CKvDxfError; everything is as it was then.
    void saveAs(const QString &path);

    /// While it is busy, background work leaves the document alone.
    void beginBusy() { ++m_busy; }
    void endBusy() { --m_busy; }

private:
    explicit CKvHostDocument(CKvDatabasePtr database);
    void takeFile(const QString &path, const std::optional<CKvFileIdentity> &state);
    static QString lockPathOf(const QString &path);

    CKvDatabasePtr m_database;
    /// Counted: a command that closes its document still ends in it.
    OdSmartPtr<CKvHostCommandContext> m_context;
    std::unique_ptr<CKvDocumentSelection> m_selection;
    std::unique_ptr<CKvUndoStack> m_undo;
    std::unique_ptr<QLockFile> m_lock;
    QString m_path;
    QString m_title;
    /// The file when it was read or saved.
    std::optional<CKvFileIdentity> m_file;
    int m_busy = 0;
};

// SPDX-License-Identifier: MIT
#include "CKvHostDocument.h"

#include "CKvDrawingFile.h"
#include "CKvDrawingLoader.h"
#include "CKvDrawingStore.h"
#include "dwgConversion.h"

#include <QDir>
#include <QFileInfo>

CKvHostDocument::CKvHostDocument(CKvDatabasePtr database)
    : m_database(std::move(database))
    , m_context(new CKvHostCommandContext(this), kOdRxObjAttach)
    , m_selection(std::make_unique<CKvDocumentSelection>())
    , m_undo(std::make_unique<CKvUndoStack>(m_database->store()))
{
}

CKvHostDocument::~CKvHostDocument()
{
    m_context->forgetDocument();
}

std::unique_ptr<CKvHostDocument> CKvHostDocument::open(const QString &path)
{
    const CKvDatabasePtr database(
        new CKvDatabase(CKvDrawingFile::load(path, CKvFileImage::Holding::Copied)), kOdRxObjAttach);
    std::unique_ptr<CKvHostDocument> document(new CKvHostDocument(database));
    document->takeFile(path, database->store().ownFile);
    return document;
}

std::unique_ptr<CKvHostDocument> CKvHostDocument::fromTemplate(const QString &path,
                                                               const QString &title)
{
    const CKvFileImagePtr file = CKvFileImage::open(path, CKvFileImage::Holding::Copied);
    // A copy without a name, so that nobody takes the template for the drawing's file.
    const QByteArray bytes(file->bytes().data(), int(file->bytes().size()));
    CKvDrawingLoader loader(CKvFileImage::fromBytes(bytes, QString()));
    const CKvDatabasePtr database(new CKvDatabase(loader.load()), kOdRxObjAttach);
    std::unique_ptr<CKvHostDocument> document(new CKvHostDocument(database));
    document->m_title = title;
    return document;
}

bool CKvHostDocument::hasWritableFile() const
{
    return !m_path.isEmpty() && !isDwgFile(m_path);
}

QString CKvHostDocument::title() const
{
    return m_path.isEmpty() ? m_title : QFileInfo(m_path).fileName();
}

QString CKvHostDocument::lockPathOf(const QString &path)
{
    const QFileInfo file(path);
    return QString(file.absolutePath() + QLatin1String("/.") + file.fileName()
                   + QLatin1String(".lock"));
}

void CKvHostDocument::takeFile(const QString &path, const std::optional<CKvFileIdentity> &state)
{
    const QString newPath = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (newPath != m_path || !m_lock || !m_lock->isLocked()) {
        m_lock = std::make_unique<QLockFile>(lockPathOf(newPath));
        // A crashed program's lock is its process's; only the living count.
        m_lock->setStaleLockTime(0);
        m_lock->tryLock(0);
    }
    m_path = newPath;
    m_file = state;
}

CKvHostDocument::Hindrance CKvHostDocument::hindranceTo(const QString &path) const
{
    const QFileInfo file(path);
    const QString target = QDir::cleanPath(file.absoluteFilePath());
    if (!file.exists()) {
        return Hindrance::None;
    }
    if (target != m_path) {
        QLockFile lock(lockPathOf(target));
        lock.setStaleLockTime(0);
        return !lock.tryLock(0) && lock.error() == QLockFile::LockFailedError
            ? Hindrance::OpenElsewhere
            : Hindrance::None;
    }
    if (m_lock && !m_lock->isLocked() && m_lock->error() == QLockFile::LockFailedError) {
        return Hindrance::OpenElsewhere;
    }
    return CKvFileIdentity::ofPath(target) == m_file ? Hindrance::None : Hindrance::ChangedOnDisk;
}

void CKvHostDocument::saveAs(const QString &path)
{
    // Saving may write the seed of the handles; what was changed before is a step of its own.
    m_undo->endStep(QString());
    // Whoever calls has asked the user; the file as it is now is the one to replace.
    if (m_database->store().ownFile) {
        m_database->store().ownFile = CKvFileIdentity::ofPath(path);
    }
    CKvDrawingFile::save(*m_database, path);
    takeFile(path, CKvFileIdentity::ofPath(path));
    m_undo->noteSaved();
}

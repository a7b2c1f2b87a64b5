// SPDX-License-Identifier: MIT
#include "chooseStandards.h"

#include "CKvStandardsFiles.h"
#include "OdDbSymbolTable.h"
#include "absolutePath.h"
#include "standardsList.h"

#include <QFileInfo>

#include <algorithm>

namespace
{

using Files = std::vector<CKvStandardsFileReport>;

CKvStandardsFileReport foundFile(const QString &path)
{
    const QString absolute = absolutePath(path);
    return { absolute, QFileInfo(absolute).fileName(), CKvStandardsFileStatus::Read, QString() };
}

CKvStandardsFileReport missingFile(const QString &path)
{
    QString forward = path;
    forward.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return { path, QFileInfo(forward).fileName(), CKvStandardsFileStatus::NotFound, QString() };
}

bool isListed(const Files &files, const QString &path)
{
    return std::any_of(files.begin(), files.end(), [&path](const CKvStandardsFileReport &file) {
        return isSameFile(file.path, path);
    });
}

/// The files of the command line; one given twice counts once.
Files givenStandards(const CKvCheckOptions &options)
{
    Files found;
    Files missing;
    for (const QString &given : options.standards) {
        const QString path = absolutePath(given);
        Files &files = QFileInfo::exists(path) ? found : missing;
        if (!isListed(files, path)) {
            files.push_back(QFileInfo::exists(path) ? foundFile(path) : missingFile(path));
        }
    }
    const QString preferred = options.preferred;
    const auto isPreferred = [&preferred](const CKvStandardsFileReport &file) {
        return !preferred.isEmpty() && isSameFile(file.path, preferred);
    };
    std::stable_partition(found.begin(), found.end(), isPreferred);
    found.insert(found.end(), missing.begin(), missing.end());
    return found;
}

/// The preferred file in the spelling of the drawing's list: the list may hold it as it was given
/// or with its full path.
QString preferredSpelling(const QString &preferred, const OdDbDatabase &drawing)
{
    if (preferred.isEmpty()) {
        return preferred;
    }
    for (CKvString listed : readStandardsList(drawing, ForeignListEntry::PassOver)) {
        listed.replace(QLatin1Char('\\'), QLatin1Char('/'));
        if (listed.equalNoCase(CKvString(preferred))) {
            return preferred;
        }
    }
    return absolutePath(preferred);
}

Files storedStandards(CKvBatchSession &session, OdDbDatabase &drawing)
{
    CKvStandaloneServices &services = session.services();
    services.standardsSettings()->setPreferredStandardsFile(
        CKvString(preferredSpelling(session.options().preferred, drawing)));
    CKvStandardsFiles stored;
    stored.load(drawing, services);
    Files files;
    for (const CKvString &path : stored.paths()) {
        files.push_back(foundFile(path.toQString()));
    }
    for (const CKvString &path : stored.missing()) {
        files.push_back(missingFile(path.toQString()));
    }
    return files;
}

bool hasRecords(const OdDbDatabase &standards, const CKvCategory &category)
{
    const OdDbSymbolTablePtr table((standards.*category.tableId)().openObject(OdDb::kForRead));
    if (!table) {
        return false;
    }
    const OdDbSymbolTableIteratorPtr walk = table->newIterator();
    for (walk->start(); !walk->done(); walk->step()) {
        if (!walk->getRecord()->isDependent()) {
            return true;
        }
    }
    return false;
}

bool isEmpty(const CKvBatchSession &session, const OdDbDatabase &standards)
{
    const auto &checks = session.checks();
    return std::none_of(checks.begin(), checks.end(), [&](const CKvBatchSession::Check &check) {
        return hasRecords(standards, *check.category);
    });
}

} // namespace

std::vector<CKvStandardsFileReport> chooseStandards(CKvBatchSession &session, OdDbDatabase &drawing)
{
    return session.options().standards.isEmpty() ? storedStandards(session, drawing)
                                                 : givenStandards(session.options());
}

void noteReadOutcomes(CKvBatchSession &session, std::vector<CKvStandardsFileReport> &standards)
{
    using ReadStatus = CKvStandaloneAppServices::ReadStatus;
    for (CKvStandardsFileReport &file : standards) {
        if (file.status == CKvStandardsFileStatus::NotFound) {
            continue;
        }
        const auto outcome = session.services().hostAppServices()->outcome(file.path);
        if (outcome.status == ReadStatus::NotFound) {
            // It went between the search and the reading.
            file.status = CKvStandardsFileStatus::NotFound;
        } else if (outcome.status == ReadStatus::Failed) {
            file.status = CKvStandardsFileStatus::Failed;
            file.error = outcome.error;
        } else if (outcome.database && isEmpty(session, *outcome.database)) {
            file.status = CKvStandardsFileStatus::Empty;
        }
    }
}

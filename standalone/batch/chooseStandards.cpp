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

/// The preferred file as the drawing lists it: only a file that the list itself spells so can be
/// the preferred one. A file that isn't listed stays itself.
QString preferredSpelling(const QString &preferred, const OdDbDatabase &drawing)
{
    QString spelling = preferred.isEmpty() ? preferred : absolutePath(preferred);
    for (CKvString listed : readStandardsList(drawing, ForeignListEntry::PassOver)) {
        listed.replace(QLatin1Char('\\'), QLatin1Char('/'));
        const QString path = listed.toQString();
        if (listed.equalNoCase(CKvString(preferred))) {
            return preferred;
        }
        if (!preferred.isEmpty() && QFileInfo::exists(path) && isSameFile(path, preferred)) {
            spelling = path;
        }
    }
    return spelling;
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

/// Empty when the preferred file comes first or is reported as missing.
QString preferredWarning(const QString &preferred, const Files &files)
{
    const auto isPreferred = [&preferred](const CKvStandardsFileReport &file) {
        QString path = file.path;
        path.replace(QLatin1Char('\\'), QLatin1Char('/'));
        return isSameFile(path, preferred) || path.compare(preferred, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::find_if(files.begin(), files.end(), isPreferred);
    if (found == files.end()) {
        return QFileInfo::exists(preferred)
            ? QStringLiteral("The preferred file %1 is none of the standards files.").arg(preferred)
            : QStringLiteral("The preferred file %1 can't be found.").arg(preferred);
    }
    const bool hasEffect = found == files.begin();
    return hasEffect || found->status == CKvStandardsFileStatus::NotFound
        ? QString()
        : QStringLiteral("The preferred file %1 does not come first: the drawing lists it under "
                         "another path.")
              .arg(preferred);
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

CKvStandardsChoice chooseStandards(CKvBatchSession &session, OdDbDatabase &drawing)
{
    CKvStandardsChoice choice;
    choice.files = session.options().standards.isEmpty() ? storedStandards(session, drawing)
                                                         : givenStandards(session.options());
    const QString preferred = session.options().preferred;
    const QString warning =
        preferred.isEmpty() ? QString() : preferredWarning(preferred, choice.files);
    if (!warning.isEmpty()) {
        choice.warnings << warning;
    }
    return choice;
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

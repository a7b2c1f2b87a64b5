// SPDX-License-Identifier: MIT
#include "commandFiles.h"

#include "CKvStandaloneServices.h"
#include "CKvStandardsFiles.h"
#include "absolutePath.h"
#include "displayWidth.h"
#include "reportJson.h"
#include "standardsList.h"
#include "terminal.h"
#include "workOnDrawing.h"

#include <QFileInfo>

#include <algorithm>

namespace
{

/// A file of the list, and where it was found; empty for nowhere.
struct ListedFile {
    QString stored;
    QString path;
};

QString withForwardSlashes(const CKvString &stored)
{
    CKvString path = stored;
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return path.toQString();
}

std::vector<CKvString> storedList(const OdDbDatabase &drawing)
{
    return readStandardsList(drawing, ForeignListEntry::PassOver);
}

/// Whether the user means this entry: by its text, by its full path or, without a folder, by its
/// name.
bool isMeant(const CKvString &stored, const QString &file)
{
    const QString path = withForwardSlashes(stored);
    const QString wanted = withForwardSlashes(CKvString(file));
    return path == wanted || path == absolutePath(wanted)
        || (!wanted.contains(QLatin1Char('/')) && QFileInfo(path).fileName() == wanted);
}

void removeFile(OdDbDatabase &drawing, const QString &file)
{
    int removed = 0;
    for (const CKvString &stored : storedList(drawing)) {
        if (isMeant(stored, file)) {
            removed += removeFromStandardsList(drawing, stored);
        }
    }
    if (removed == 0) {
        throw OdError(OdResult::kInvalidInput,
                      QStringLiteral("%1 is not in the list.").arg(file).toStdString());
    }
}

void addFile(OdDbDatabase &drawing, const QString &file)
{
    const QString path = absolutePath(file);
    if (!QFileInfo(path).isFile()) {
        throw OdError(
            OdResult::kInvalidInput,
            QStringLiteral("The standards file %1 can't be found.").arg(file).toStdString());
    }
    const std::vector<CKvString> stored = storedList(drawing);
    const bool isListed =
        std::any_of(stored.begin(), stored.end(), [&path](const CKvString &entry) {
            return withForwardSlashes(entry) == path;
        });
    if (!isListed) {
        appendToStandardsList(drawing, CKvString(path));
    }
}

/// Absolute; empty for nowhere.
QString foundPath(const CKvString &stored, OdDbDatabase &drawing, CKvSystemServices &services)
{
    const CKvString found = CKvStandardsFiles::find(stored, drawing, services);
    return found.isEmpty() ? QString() : absolutePath(found.toQString());
}

QString listText(const std::vector<ListedFile> &files)
{
    QString text;
    for (const ListedFile &file : files) {
        text += printable(file.stored);
        if (file.path.isEmpty()) {
            text += QStringLiteral("  (not found)");
        } else if (file.path != withForwardSlashes(CKvString(file.stored))) {
            text += QStringLiteral("  (found as %1)").arg(printable(file.path));
        }
        text += QLatin1Char('\n');
    }
    return text;
}

QString listJson(const QString &drawing, const std::vector<ListedFile> &files)
{
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const ListedFile &file : files) {
        const bool isFound = !file.path.isEmpty();
        list.push_back({ { "stored", file.stored.toStdString() },
                         { "path", (isFound ? file.path : file.stored).toStdString() },
                         { "status", isFound ? "found" : "not-found" } });
    }
    const nlohmann::ordered_json json = { { "schema", 1 },
                                          { "tool", toolJson() },
                                          { "path", drawing.toStdString() },
                                          { "standards", std::move(list) } };
    return QString::fromUtf8(jsonText(json, 2)) + QLatin1Char('\n');
}

} // namespace

CKvExitStatus commandFiles(const CKvDrawingOptions &options)
{
    CKvStandaloneServices services;
    services.setSearchPaths(options.searchPaths);
    std::vector<ListedFile> files;
    const bool isDone = workOnDrawing(options.drawing, [&](OdDbDatabase &drawing) {
        for (const QString &file : options.removed) {
            removeFile(drawing, file);
        }
        for (const QString &file : options.added) {
            addFile(drawing, file);
        }
        for (const CKvString &stored : storedList(drawing)) {
            files.push_back({ stored.toQString(), foundPath(stored, drawing, services) });
        }
    });
    if (!isDone) {
        return CKvExitStatus::Incomplete;
    }
    const bool isPrinted =
        printOutput(options.format == CKvReportFormat::Json ? listJson(options.drawing, files)
                                                            : listText(files));
    return isPrinted ? CKvExitStatus::Clean : CKvExitStatus::Incomplete;
}

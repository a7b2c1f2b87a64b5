// SPDX-License-Identifier: MIT
#include "CKvRepairMap.h"

#include "CKvCategory.h"
#include "CKvUsageError.h"
#include "absolutePath.h"
#include "parseCsv.h"

#include <QFile>
#include <QFileInfo>

namespace
{

[[noreturn]] void refuse(const QString &fileName, int line, const QString &reason)
{
    throw CKvUsageError(QStringLiteral("%1:%2: %3").arg(fileName).arg(line).arg(reason));
}

void requireHeader(const std::vector<CKvCsvRow> &rows, const QString &fileName)
{
    const QStringList wanted = { QStringLiteral("category"),
                                 QStringLiteral("name"),
                                 QStringLiteral("target"),
                                 QStringLiteral("standards file") };
    const QStringList found = rows.empty() ? QStringList() : rows.front().cells;
    bool isHeader = found.size() == 3 || found.size() == 4;
    for (int i = 0; isHeader && i < found.size(); ++i) {
        isHeader = found[i].trimmed().compare(wanted[i], Qt::CaseInsensitive) == 0;
    }
    if (!isHeader) {
        refuse(fileName,
               1,
               QStringLiteral("The first row must be category,name,target or "
                              "category,name,target,standards file."));
    }
}

bool isKnownCategory(const QString &word)
{
    for (const CKvCategory *category : allCategories()) {
        if (word == QLatin1String(category->word)) {
            return true;
        }
    }
    return false;
}

} // namespace

bool CKvRepairMapRow::namesFile(const QString &path) const
{
    if (standardsFile.isEmpty()) {
        return true;
    }
    QString wanted = standardsFile;
    wanted.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return wanted == path || absolutePath(wanted) == path
        || (!wanted.contains(QLatin1Char('/')) && wanted == QFileInfo(path).fileName());
}

CKvRepairMap parseRepairMap(const QByteArray &bytes, const QString &fileName)
{
    QString text = QString::fromUtf8(bytes);
    if (text.startsWith(QChar(QChar::ByteOrderMark))) {
        text.remove(0, 1);
    }
    const std::vector<CKvCsvRow> rows = parseCsv(text);
    requireHeader(rows, fileName);
    CKvRepairMap map;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const QStringList &cells = rows[i].cells;
        const int line = rows[i].line;
        if (cells.size() != 3 && cells.size() != 4) {
            refuse(fileName,
                   line,
                   QStringLiteral("The row has %1 cells; it must have 3 or 4.").arg(cells.size()));
        }
        const QString category = cells[0].trimmed();
        if (!isKnownCategory(category)) {
            refuse(fileName, line, QStringLiteral("There is no category \"%1\".").arg(category));
        }
        // Names keep their blanks: an object's name may begin or end with one.
        map.push_back({ category, cells[1], cells[2], cells.value(3).trimmed(), line });
    }
    return map;
}

CKvRepairMap readRepairMap(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw CKvUsageError(
            QStringLiteral("The map %1 can't be read: %2.").arg(path, file.errorString()));
    }
    return parseRepairMap(file.readAll(), path);
}

// SPDX-License-Identifier: MIT
#include "violationRows.h"

#include "CKvCategory.h"
#include "displayWidth.h"

#include <QFileInfo>

namespace
{

using Row = CKvTextTable::Row;

QString nounOf(const QString &categoryWord)
{
    for (const CKvCategory *category : allCategories()) {
        if (categoryWord == QLatin1String(category->word)) {
            return QString::fromLatin1(category->noun);
        }
    }
    return categoryWord;
}

QString candidateCount(int count)
{
    if (count == 0) {
        return QStringLiteral("no candidate");
    }
    return count == 1 ? QStringLiteral("1 candidate") : QStringLiteral("%1 candidates").arg(count);
}

QString sentence(const CKvViolationReport &violation)
{
    const QString candidates = candidateCount(violation.candidates);
    return violation.kind == CKvViolationReportKind::Name
        ? QStringLiteral("no %1 of that name in the standards; %2")
              .arg(nounOf(violation.category), candidates)
        : QStringLiteral("other properties than in the standards; %1").arg(candidates);
}

QString ignoredNote(const CKvViolationReport &violation)
{
    if (!violation.isIgnored) {
        return {};
    }
    return violation.ignoredBy.isEmpty()
        ? QStringLiteral("ignored")
        : QStringLiteral("ignored by %1").arg(printable(violation.ignoredBy));
}

Row rowBegin(const CKvViolationReport &violation)
{
    const CKvTextStyle style = violation.isIgnored ? CKvTextStyle::Faint : CKvTextStyle::Plain;
    return { { violation.type, style }, { printable(violation.name), style } };
}

Row sentenceRow(const CKvViolationReport &violation)
{
    Row row = rowBegin(violation);
    const QString note = ignoredNote(violation);
    const QString text = sentence(violation);
    row.push_back({ note.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, note),
                    violation.isIgnored ? CKvTextStyle::Faint : CKvTextStyle::Yellow });
    return row;
}

Row differenceRow(const CKvViolationReport &violation,
                  const CKvFixReport &fix,
                  const CKvDifferenceReport &difference)
{
    const bool isIgnored = violation.isIgnored;
    Row row = rowBegin(violation);
    row.push_back({ difference.property, isIgnored ? CKvTextStyle::Faint : CKvTextStyle::Plain });
    row.push_back(
        { printable(difference.current), isIgnored ? CKvTextStyle::Faint : CKvTextStyle::Red });
    row.push_back(
        { printable(difference.standard), isIgnored ? CKvTextStyle::Faint : CKvTextStyle::Green });
    QString source = QFileInfo(fix.standardsFile).fileName();
    // A record of the same name may be spelled otherwise, and a chosen candidate has another name.
    if (fix.name != violation.name) {
        source = QStringLiteral("%1 in %2").arg(fix.name, source);
    }
    if (isIgnored) {
        source += QStringLiteral(" (%1)").arg(ignoredNote(violation));
    }
    row.push_back({ printable(source), CKvTextStyle::Faint });
    return row;
}

} // namespace

CKvTextTable::Row violationHeading()
{
    const CKvTextStyle bold = CKvTextStyle::Bold;
    return { { QStringLiteral("Type"), bold },           { QStringLiteral("Name"), bold },
             { QStringLiteral("Property"), bold },       { QStringLiteral("Current value"), bold },
             { QStringLiteral("Standard value"), bold }, { QStringLiteral("From"), bold } };
}

std::vector<CKvTextTable::Row> violationRows(const CKvViolationReport &violation)
{
    std::vector<Row> rows;
    for (const CKvFixReport &fix : violation.fixes) {
        for (const CKvDifferenceReport &difference : fix.differences) {
            rows.push_back(differenceRow(violation, fix, difference));
        }
    }
    const bool isNameOnly = violation.kind == CKvViolationReportKind::Name;
    if (rows.empty() || isNameOnly) {
        rows.insert(rows.begin(), sentenceRow(violation));
    }
    return rows;
}

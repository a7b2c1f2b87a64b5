// SPDX-License-Identifier: MIT
#include "CKvTextReport.h"

#include "CKvReportOutput.h"
#include "displayWidth.h"
#include "violationRows.h"

#include <QFileInfo>

#include <algorithm>

namespace
{

constexpr int kIndent = 2;

QString counted(int count, const char *one, const char *many)
{
    return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? one : many));
}

/// "2 violations, 1 ignored"
QString violationCount(int open, int ignored)
{
    QString text =
        open == 0 ? QStringLiteral("no violations") : counted(open, "violation", "violations");
    if (ignored > 0) {
        text += QStringLiteral(", %1 ignored").arg(ignored);
    }
    return text;
}

bool hasFileTrouble(const CKvDrawingReport &report)
{
    for (const CKvStandardsFileReport &file : report.standards) {
        if (file.status != CKvStandardsFileStatus::Read) {
            return true;
        }
    }
    return false;
}

/// Empty for a file that was read.
QString fileTrouble(const CKvStandardsFileReport &file)
{
    switch (file.status) {
    case CKvStandardsFileStatus::NotFound:
        return QStringLiteral("Standards file not found: %1").arg(file.path);
    case CKvStandardsFileStatus::Failed:
        return QStringLiteral("Standards file can't be read: %1")
            .arg(file.error.isEmpty() ? file.path : file.error);
    case CKvStandardsFileStatus::Empty:
        return QStringLiteral("Standards file has nothing to check against: %1").arg(file.path);
    case CKvStandardsFileStatus::Read:
        break;
    }
    return {};
}

/// Whether any row has values in columns; sentences need no heading.
bool hasValues(const std::vector<CKvTextTable::Row> &rows)
{
    const std::size_t columns = violationHeading().size();
    return std::any_of(rows.begin(), rows.end(), [columns](const CKvTextTable::Row &row) {
        return row.size() == columns;
    });
}

CKvTextTable::Row repairRow(const CKvRepairReport &repair, const QString &verb, CKvTextStyle style)
{
    const QString file = QFileInfo(repair.standardsFile).fileName();
    const QString target =
        file.isEmpty() ? repair.target : QStringLiteral("%1 in %2").arg(repair.target, file);
    CKvTextTable::Row row = { { verb, style },
                              { repair.category, CKvTextStyle::Plain },
                              { printable(repair.name), CKvTextStyle::Plain },
                              { QStringLiteral("as ") + printable(target), CKvTextStyle::Plain } };
    if (!repair.error.isEmpty()) {
        row.push_back({ printable(repair.error), CKvTextStyle::Red });
    }
    return row;
}

} // namespace

CKvTextReport::CKvTextReport(const CKvRunOptions &options, CKvReportOutput &output, bool isColored)
    : m_options(options)
    , m_output(output)
    , m_isColored(isColored)
{
}

void CKvTextReport::addDrawing(const CKvDrawingReport &report)
{
    const bool isClean = report.status == CKvDrawingStatus::Checked && !hasFileTrouble(report)
        && openViolations(report, m_options.includesIgnored) == 0 && report.notRepaired.empty();
    if (!m_options.isQuiet || !isClean) {
        m_output.write(heading(report) + standardsText(report) + violationsText(report)
                       + repairsText(report));
    }
    m_output.write(report.difference);
    m_output.flush();
}

QString CKvTextReport::heading(const CKvDrawingReport &report) const
{
    const int open = openViolations(report, m_options.includesIgnored);
    const int ignored = int(report.violations.size()) - openViolations(report, false);
    QString state = violationCount(open, ignored);
    CKvTextStyle style = open > 0 ? CKvTextStyle::Red : CKvTextStyle::Green;
    if (report.status == CKvDrawingStatus::Failed) {
        state = QStringLiteral("failed");
        style = CKvTextStyle::Red;
    } else if (report.status == CKvDrawingStatus::NoStandards) {
        state = QStringLiteral("not checked, it has no standards file that can be used");
        style = CKvTextStyle::Red;
    } else if (open == 0 && hasFileTrouble(report)) {
        style = CKvTextStyle::Yellow;
    }
    const QString path = styled(printable(report.path), CKvTextStyle::Bold, m_isColored);
    QString text = QStringLiteral("%1: %2\n").arg(path, styled(state, style, m_isColored));
    if (!report.error.isEmpty()) {
        text += note(report.error, CKvTextStyle::Red);
    }
    return text;
}

QString CKvTextReport::standardsText(const CKvDrawingReport &report) const
{
    QString text;
    for (const CKvStandardsFileReport &file : report.standards) {
        if (file.status != CKvStandardsFileStatus::Read) {
            text += note(fileTrouble(file), CKvTextStyle::Red);
        }
    }
    if (!m_options.isQuiet) {
        for (const QString &warning : report.warnings) {
            text += note(QStringLiteral("Warning: ") + warning, CKvTextStyle::Yellow);
        }
    }
    return text;
}

QString CKvTextReport::violationsText(const CKvDrawingReport &report) const
{
    std::vector<CKvTextTable::Row> rows;
    for (const CKvViolationReport &violation : report.violations) {
        for (CKvTextTable::Row &row : violationRows(violation)) {
            rows.push_back(std::move(row));
        }
    }
    CKvTextTable table;
    if (hasValues(rows)) {
        table.add(violationHeading());
    }
    for (CKvTextTable::Row &row : rows) {
        table.add(std::move(row));
    }
    return table.toText(kIndent, m_isColored);
}

QString CKvTextReport::repairsText(const CKvDrawingReport &report) const
{
    const QString done =
        m_options.fix.isDryRun ? QStringLiteral("would repair") : QStringLiteral("repaired");
    CKvTextTable table;
    for (const CKvRepairReport &repair : report.repaired) {
        table.add(repairRow(repair, done, CKvTextStyle::Green));
    }
    for (const CKvRepairReport &repair : report.notRepaired) {
        table.add(repairRow(repair, QStringLiteral("not repaired"), CKvTextStyle::Red));
    }
    QString text = table.toText(kIndent, m_isColored);
    if (!report.output.isEmpty()) {
        text += note(QStringLiteral("Written to %1").arg(report.output), CKvTextStyle::Plain);
    }
    return text;
}

QString CKvTextReport::note(const QString &text, CKvTextStyle style) const
{
    return QString(kIndent, QLatin1Char(' ')) + styled(printable(text), style, m_isColored)
        + QLatin1Char('\n');
}

void CKvTextReport::end(const CKvRunSummary &summary)
{
    if (m_options.isQuiet || summary.drawings == 0) {
        return;
    }
    QString text = counted(summary.checked, "drawing checked: ", "drawings checked: ");
    text += violationCount(summary.violations, summary.ignored);
    const int unchecked = summary.drawings - summary.checked;
    if (unchecked > 0) {
        text += QStringLiteral("; ") + counted(unchecked, "not checked", "not checked");
    }
    if (summary.repaired + summary.notRepaired > 0) {
        text += QStringLiteral("; %1 %2")
                    .arg(summary.repaired)
                    .arg(m_options.fix.isDryRun ? QStringLiteral("to repair")
                                                : QStringLiteral("repaired"));
    }
    if (summary.notRepaired > 0) {
        text += QStringLiteral(", %1 not repaired").arg(summary.notRepaired);
    }
    m_output.write(text + QLatin1Char('\n'));
}

// SPDX-License-Identifier: MIT
#include "CKvHtmlReport.h"

#include "CKvReportOutput.h"
#include "displayWidth.h"
#include "reportJson.h"
#include "violationRows.h"

namespace
{

QString escaped(const QString &text)
{
    return printable(text).toHtmlEscaped();
}

QString troubleLine(const QString &text)
{
    return QStringLiteral("<p class=\"trouble\">%1</p>\n").arg(escaped(text));
}

QString violationTable(const CKvDrawingReport &report)
{
    QString html = QStringLiteral("<table>\n<tr><th>Type</th><th>Name</th><th>Property</th>"
                                  "<th>Current value</th><th>Standard value</th>"
                                  "<th>From</th></tr>\n");
    for (const CKvViolationReport &violation : report.violations) {
        const QString rowClass =
            violation.isIgnored ? QStringLiteral("ignored") : QStringLiteral("open");
        for (const CKvTextTable::Row &row : violationRows(violation)) {
            html += QStringLiteral("<tr class=\"%1\">").arg(rowClass);
            for (std::size_t i = 0; i < row.size(); ++i) {
                // A sentence takes the place of the four last cells.
                const bool isSentence = i + 1 == row.size() && row.size() == 3;
                html += QLatin1String(isSentence ? "<td colspan=\"4\">" : "<td>")
                    + row[i].text.toHtmlEscaped() + QLatin1String("</td>");
            }
            html += QStringLiteral("</tr>\n");
        }
    }
    return html + QStringLiteral("</table>\n");
}

} // namespace

void CKvHtmlReport::begin()
{
    m_output.write(
        QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<title>Drawing standards</title>\n<style>\n"
                       "body { font-family: sans-serif; }\n"
                       "table { border-collapse: collapse; }\n"
                       "th, td { border: 1px solid #ccc; padding: 2px 8px; text-align: left; }\n"
                       ".trouble { color: #b00; }\n.ignored { color: #777; }\n"
                       "</style>\n</head>\n<body>\n<h1>Drawing standards</h1>\n"));
}

void CKvHtmlReport::addDrawing(const CKvDrawingReport &report)
{
    QString html = QStringLiteral("<h2>%1</h2>\n").arg(escaped(report.path));
    if (report.status == CKvDrawingStatus::Failed) {
        html += troubleLine(report.error);
    } else if (report.status == CKvDrawingStatus::NoStandards) {
        html +=
            troubleLine(QStringLiteral("Not checked: it has no standards file that can be used."));
    }
    for (const CKvStandardsFileReport &file : report.standards) {
        if (file.status != CKvStandardsFileStatus::Read) {
            html += troubleLine(QStringLiteral("Standards file %1: %2")
                                    .arg(QLatin1String(statusWord(file.status)),
                                         file.error.isEmpty() ? file.path : file.error));
        }
    }
    for (const CKvRepairReport &repair : report.notRepaired) {
        html += troubleLine(QStringLiteral("%1 %2 was not repaired: %3")
                                .arg(repair.category, repair.name, repair.error));
    }
    if (!report.violations.empty()) {
        html += violationTable(report);
    } else if (report.status == CKvDrawingStatus::Checked) {
        html += QStringLiteral("<p>No violations.</p>\n");
    }
    m_output.write(html);
}

void CKvHtmlReport::end(const CKvRunSummary &summary)
{
    m_output.write(QStringLiteral("<p>Drawings: %1, failed: %2. Violations: %3, ignored: %4.</p>\n"
                                  "</body>\n</html>\n")
                       .arg(summary.drawings)
                       .arg(summary.failed)
                       .arg(summary.violations)
                       .arg(summary.ignored));
}

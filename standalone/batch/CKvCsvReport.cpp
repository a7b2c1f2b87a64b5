// SPDX-License-Identifier: MIT
#include "CKvCsvReport.h"

#include "CKvReportOutput.h"
#include "reportJson.h"

#include <QStringList>

namespace
{

QString quoted(const QString &cell)
{
    const bool isPlain = !cell.contains(QLatin1Char(',')) && !cell.contains(QLatin1Char('"'))
        && !cell.contains(QLatin1Char('\n')) && !cell.contains(QLatin1Char('\r'))
        && cell == cell.trimmed();
    if (isPlain) {
        return cell;
    }
    QString inner = cell;
    inner.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + inner + QLatin1Char('"');
}

QString csvLine(const QStringList &cells)
{
    QStringList quotedCells;
    for (const QString &cell : cells) {
        quotedCells << quoted(cell);
    }
    return quotedCells.join(QLatin1Char(',')) + QLatin1Char('\n');
}

QStringList violationCells(const CKvDrawingReport &report, const CKvViolationReport &violation)
{
    return {
        report.path,         QString::fromLatin1(statusWord(report.status)),
        ruleOf(violation),   violation.name,
        violation.handle,    violation.isIgnored ? QStringLiteral("yes") : QStringLiteral("no"),
        violation.ignoredBy, violation.message
    };
}

QStringList troubleCells(const QString &path, const char *status, const QString &error)
{
    QStringList cells = { path, QString::fromLatin1(status) };
    while (cells.size() < 7) {
        cells << QString();
    }
    return cells << error << QString() << QString() << QString() << QString() << QString();
}

QString violationLines(const CKvDrawingReport &report, const CKvViolationReport &violation)
{
    const QStringList begin = violationCells(report, violation);
    QString lines;
    for (const CKvFixReport &fix : violation.fixes) {
        for (const CKvDifferenceReport &row : fix.differences) {
            lines +=
                csvLine(begin
                        + QStringList {
                            row.property, row.current, row.standard, fix.name, fix.standardsFile });
        }
    }
    const QStringList none = { QString(), QString(), QString(), QString(), QString() };
    return lines.isEmpty() ? csvLine(begin + none) : lines;
}

} // namespace

void CKvCsvReport::begin()
{
    m_output.write(QStringLiteral("drawing,status,rule,name,handle,ignored,ignored by,message,"
                                  "property,current,standard,candidate,standards file\n"));
}

void CKvCsvReport::addDrawing(const CKvDrawingReport &report)
{
    QString lines;
    if (report.status != CKvDrawingStatus::Checked) {
        lines += csvLine(troubleCells(report.path, statusWord(report.status), report.error));
    }
    for (const CKvStandardsFileReport &file : report.standards) {
        if (file.status != CKvStandardsFileStatus::Read) {
            const QString error = file.error.isEmpty() ? file.path : file.error;
            lines += csvLine(troubleCells(report.path, statusWord(file.status), error));
        }
    }
    for (const CKvViolationReport &violation : report.violations) {
        lines += violationLines(report, violation);
    }
    m_output.write(lines);
}

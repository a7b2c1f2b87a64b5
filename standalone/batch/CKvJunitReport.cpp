// SPDX-License-Identifier: MIT
#include "CKvJunitReport.h"

#include "CKvReportOutput.h"
#include "displayWidth.h"
#include "reportJson.h"

#include <QXmlStreamWriter>

namespace
{

/// What could not be done, a sentence each.
QStringList troubles(const CKvDrawingReport &report)
{
    QStringList errors;
    if (report.status == CKvDrawingStatus::Failed) {
        errors << report.error;
    } else if (report.status == CKvDrawingStatus::NoStandards) {
        errors << QStringLiteral("The drawing has no standards file that can be used.");
    }
    for (const CKvStandardsFileReport &file : report.standards) {
        if (file.status != CKvStandardsFileStatus::Read) {
            errors << QStringLiteral("Standards file %1: %2")
                          .arg(QLatin1String(statusWord(file.status)),
                               file.error.isEmpty() ? file.path : file.error);
        }
    }
    for (const CKvRepairReport &repair : report.notRepaired) {
        errors << QStringLiteral("%1 %2 was not repaired: %3")
                      .arg(repair.category, repair.name, repair.error);
    }
    return errors;
}

/// Control characters have no place in XML.
void writeAttribute(QXmlStreamWriter &xml, const char *name, const QString &value)
{
    xml.writeAttribute(QString::fromLatin1(name), printable(value));
}

void beginCase(QXmlStreamWriter &xml, const QString &className, const QString &name)
{
    xml.writeStartElement(QStringLiteral("testcase"));
    writeAttribute(xml, "classname", className);
    writeAttribute(xml, "name", name);
}

void writeCounts(QXmlStreamWriter &xml, int tests, int failures, int errors, int skipped)
{
    writeAttribute(xml, "tests", QString::number(tests));
    writeAttribute(xml, "failures", QString::number(failures));
    writeAttribute(xml, "errors", QString::number(errors));
    writeAttribute(xml, "skipped", QString::number(skipped));
}

QString differencesText(const CKvViolationReport &violation)
{
    QString text;
    for (const CKvFixReport &fix : violation.fixes) {
        for (const CKvDifferenceReport &row : fix.differences) {
            text += QStringLiteral("%1: %2, standard %3 (%4 in %5)\n")
                        .arg(row.property, row.current, row.standard, fix.name, fix.standardsFile);
        }
    }
    return text;
}

} // namespace

void CKvJunitReport::end(const CKvRunSummary & /*summary*/)
{
    QString text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("testsuites"));
    writeAttribute(xml, "name", QStringLiteral("kvstandards"));
    for (const CKvDrawingReport &drawing : drawings()) {
        writeSuite(xml, drawing);
    }
    xml.writeEndElement();
    xml.writeEndDocument();
    output().write(text);
}

void CKvJunitReport::writeSuite(QXmlStreamWriter &xml, const CKvDrawingReport &report) const
{
    const QStringList errors = troubles(report);
    const int failures = openViolations(report, m_countsIgnored);
    const int all = int(report.violations.size());
    const bool isClean = errors.isEmpty() && all == 0;
    xml.writeStartElement(QStringLiteral("testsuite"));
    writeAttribute(xml, "name", report.path);
    writeCounts(xml, isClean ? 1 : all + errors.size(), failures, errors.size(), all - failures);
    for (const QString &error : errors) {
        beginCase(xml, report.path, QStringLiteral("standards"));
        xml.writeStartElement(QStringLiteral("error"));
        writeAttribute(xml, "message", error);
        xml.writeEndElement();
        xml.writeEndElement();
    }
    for (const CKvViolationReport &violation : report.violations) {
        beginCase(xml, report.path, ruleOf(violation) + QLatin1Char(' ') + violation.name);
        writeViolation(xml, violation);
        xml.writeEndElement();
    }
    if (isClean) {
        beginCase(xml, report.path, QStringLiteral("standards"));
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

void CKvJunitReport::writeViolation(QXmlStreamWriter &xml,
                                    const CKvViolationReport &violation) const
{
    if (violation.isIgnored && !m_countsIgnored) {
        xml.writeStartElement(QStringLiteral("skipped"));
        writeAttribute(xml, "message", QStringLiteral("ignored by ") + violation.ignoredBy);
        xml.writeEndElement();
        return;
    }
    xml.writeStartElement(QStringLiteral("failure"));
    writeAttribute(xml, "message", violation.message);
    writeAttribute(xml, "type", ruleOf(violation));
    const QString differences = differencesText(violation);
    if (!differences.isEmpty()) {
        xml.writeCharacters(differences);
    }
    xml.writeEndElement();
}

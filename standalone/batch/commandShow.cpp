// SPDX-License-Identifier: MIT
#include "commandShow.h"

#include "CKvBatchSession.h"
#include "CKvRecordListing.h"
#include "CKvTextTable.h"
#include "displayWidth.h"
#include "reportJson.h"
#include "terminal.h"
#include "workOnDrawing.h"

namespace
{

/// The records of one category.
struct CKvSection {
    const CKvCategory *category;
    std::vector<CKvRecordListing> records;
};

/// More columns than these are a block of lines for each record.
constexpr std::size_t kColumnsOfATable = 12;

QString remarks(const CKvRecordListing &record)
{
    QStringList words;
    if (record.isHidden) {
        words << QStringLiteral("hidden");
    }
    if (record.isShapeFile) {
        words << QStringLiteral("shape file");
    }
    if (record.isDependent) {
        words << QStringLiteral("external reference");
    }
    if (record.isIgnored) {
        words << (record.ignoredBy.isEmpty()
                      ? QStringLiteral("ignored")
                      : QStringLiteral("ignored by %1").arg(record.ignoredBy));
    }
    return words.join(QStringLiteral(", "));
}

/// "Line style"
QString heading(const CKvCategory &category)
{
    QString noun = QString::fromLatin1(category.noun);
    noun[0] = noun[0].toUpper();
    return noun;
}

/// A row for each record, with a column for each of its values.
QString tableText(const CKvSection &section, bool isColored)
{
    const CKvTextStyle bold = CKvTextStyle::Bold;
    CKvTextTable table;
    CKvTextTable::Row head { { heading(*section.category), bold } };
    if (!section.records.empty()) {
        for (const auto &[name, value] : section.records.front().properties) {
            head.push_back({ name, bold });
        }
    }
    head.push_back({ QString() });
    table.add(head);
    for (const CKvRecordListing &record : section.records) {
        CKvTextTable::Row row { { printable(record.name) } };
        for (const auto &[name, value] : record.properties) {
            row.push_back({ printable(value) });
        }
        row.push_back({ printable(remarks(record)), CKvTextStyle::Faint });
        table.add(row);
    }
    return table.toText(0, isColored);
}

/// The name of each record, and its values below it.
QString blocksText(const CKvSection &section, bool isColored)
{
    QString text = styled(heading(*section.category), CKvTextStyle::Bold, isColored);
    text += QLatin1Char('\n');
    for (const CKvRecordListing &record : section.records) {
        CKvTextTable title;
        title.add(
            { { printable(record.name) }, { printable(remarks(record)), CKvTextStyle::Faint } });
        text += title.toText(0, isColored);
        CKvTextTable values;
        for (const auto &[name, value] : record.properties) {
            values.add({ { name }, { printable(value) } });
        }
        text += values.toText(2, isColored);
    }
    return text;
}

QString sectionsText(const std::vector<CKvSection> &sections, bool isColored)
{
    QStringList texts;
    for (const CKvSection &section : sections) {
        const bool isTable = section.records.empty()
            || section.records.front().properties.size() <= kColumnsOfATable;
        texts << (isTable ? tableText(section, isColored) : blocksText(section, isColored));
    }
    return texts.join(QLatin1Char('\n'));
}

nlohmann::ordered_json recordJson(const CKvCategory &category, const CKvRecordListing &record)
{
    nlohmann::ordered_json properties = nlohmann::ordered_json::object();
    for (const auto &[name, value] : record.properties) {
        properties[name.toStdString()] = value.toStdString();
    }
    nlohmann::ordered_json json = { { "name", record.name.toStdString() },
                                    { "handle", record.handle.toStdString() },
                                    { "properties", std::move(properties) } };
    if (category.word == std::string_view("layers")) {
        json["hidden"] = record.isHidden;
    } else if (category.word == std::string_view("textstyles")) {
        json["shapeFile"] = record.isShapeFile;
    }
    json["externalReference"] = record.isDependent;
    json["ignored"] = record.isIgnored;
    json["ignoredBy"] = record.ignoredBy.toStdString();
    return json;
}

QString sectionsJson(const QString &drawing, const std::vector<CKvSection> &sections)
{
    nlohmann::ordered_json json = { { "schema", 1 },
                                    { "tool", toolJson() },
                                    { "path", drawing.toStdString() } };
    for (const CKvSection &section : sections) {
        nlohmann::ordered_json list = nlohmann::ordered_json::array();
        for (const CKvRecordListing &record : section.records) {
            list.push_back(recordJson(*section.category, record));
        }
        json[section.category->word] = std::move(list);
    }
    return QString::fromUtf8(jsonText(json, 2)) + QLatin1Char('\n');
}

} // namespace

CKvExitStatus commandShow(const CKvDrawingOptions &options)
{
    CKvCheckOptions check;
    check.categories = options.categories;
    const CKvBatchSession session(check);
    std::vector<CKvSection> sections;
    const bool isDone = workOnDrawing(options.drawing, [&](OdDbDatabase &drawing) {
        for (const CKvBatchSession::Check &each : session.checks()) {
            sections.push_back({ each.category, listRecords(drawing, each) });
        }
    });
    if (!isDone) {
        return CKvExitStatus::Incomplete;
    }
    const bool isPrinted = printOutput(options.format == CKvReportFormat::Json
                                           ? sectionsJson(options.drawing, sections)
                                           : sectionsText(sections, wantsColor(options.color)));
    return isPrinted ? CKvExitStatus::Clean : CKvExitStatus::Incomplete;
}

// SPDX-License-Identifier: MIT
#include "reportJson.h"

#include "toolVersion.h"

#include <array>

namespace
{

using Json = nlohmann::ordered_json;

constexpr std::array<const char *, 3> kDrawingStatus = { "checked", "no-standards", "failed" };
constexpr std::array<const char *, 4> kFileStatus = { "read", "empty", "not-found", "failed" };
constexpr std::array<const char *, 2> kKind = { "name", "properties" };

Json text(const QString &value)
{
    return value.toStdString();
}

QString textAt(const Json &json, const char *key)
{
    return QString::fromStdString(json.at(key).get<std::string>());
}

/// The value whose word stands under the key; the first when none has that word.
template <class Value, std::size_t Count>
Value valueAt(const Json &json, const char *key, const std::array<const char *, Count> &words)
{
    const auto word = json.at(key).get<std::string>();
    for (std::size_t i = 0; i < Count; ++i) {
        if (word == words[i]) {
            return Value(i);
        }
    }
    return Value(0);
}

template <class Item, class Convert> Json list(const std::vector<Item> &items, Convert convert)
{
    Json array = Json::array();
    for (const Item &item : items) {
        array.push_back(convert(item));
    }
    return array;
}

template <class Item, class Convert>
std::vector<Item> listAt(const Json &json, const char *key, Convert convert)
{
    std::vector<Item> items;
    for (const Json &element : json.at(key)) {
        items.push_back(convert(element));
    }
    return items;
}

Json fileJson(const CKvStandardsFileReport &file)
{
    return { { "path", text(file.path) },
             { "name", text(file.name) },
             { "status", statusWord(file.status) },
             { "error", text(file.error) } };
}

CKvStandardsFileReport fileFrom(const Json &json)
{
    return { textAt(json, "path"),
             textAt(json, "name"),
             valueAt<CKvStandardsFileStatus>(json, "status", kFileStatus),
             textAt(json, "error") };
}

Json differenceJson(const CKvDifferenceReport &row)
{
    return { { "property", text(row.property) },
             { "current", text(row.current) },
             { "standard", text(row.standard) } };
}

CKvDifferenceReport differenceFrom(const Json &json)
{
    return { textAt(json, "property"), textAt(json, "current"), textAt(json, "standard") };
}

Json fixJson(const CKvFixReport &fix)
{
    return { { "index", fix.index },
             { "name", text(fix.name) },
             { "standardsFile", text(fix.standardsFile) },
             { "differences", list(fix.differences, differenceJson) } };
}

CKvFixReport fixFrom(const Json &json)
{
    return { json.at("index").get<int>(),
             textAt(json, "name"),
             textAt(json, "standardsFile"),
             listAt<CKvDifferenceReport>(json, "differences", differenceFrom) };
}

Json propertiesJson(const CKvViolationReport &violation)
{
    Json properties = Json::object();
    for (const auto &[name, value] : violation.properties) {
        properties[name.toStdString()] = text(value);
    }
    return properties;
}

Json violationJson(const CKvViolationReport &violation)
{
    return {
        { "rule", text(ruleOf(violation)) },        { "category", text(violation.category) },
        { "kind", kindWord(violation.kind) },       { "name", text(violation.name) },
        { "handle", text(violation.handle) },       { "type", text(violation.type) },
        { "message", text(violation.message) },     { "ignored", violation.isIgnored },
        { "ignoredBy", text(violation.ignoredBy) }, { "properties", propertiesJson(violation) },
        { "candidates", violation.candidates },     { "recommended", violation.recommended },
        { "fixes", list(violation.fixes, fixJson) }
    };
}

CKvViolationReport violationFrom(const Json &json)
{
    CKvViolationReport violation;
    violation.category = textAt(json, "category");
    violation.kind = valueAt<CKvViolationReportKind>(json, "kind", kKind);
    violation.name = textAt(json, "name");
    violation.handle = textAt(json, "handle");
    violation.type = textAt(json, "type");
    violation.message = textAt(json, "message");
    violation.isIgnored = json.at("ignored").get<bool>();
    violation.ignoredBy = textAt(json, "ignoredBy");
    for (const auto &[name, value] : json.at("properties").items()) {
        violation.properties.emplace_back(QString::fromStdString(name),
                                          QString::fromStdString(value.get<std::string>()));
    }
    violation.candidates = json.at("candidates").get<int>();
    violation.recommended = json.at("recommended").get<int>();
    violation.fixes = listAt<CKvFixReport>(json, "fixes", fixFrom);
    return violation;
}

Json repairJson(const CKvRepairReport &repair)
{
    return { { "category", text(repair.category) },
             { "name", text(repair.name) },
             { "target", text(repair.target) },
             { "standardsFile", text(repair.standardsFile) } };
}

Json failedRepairJson(const CKvRepairReport &repair)
{
    Json json = repairJson(repair);
    json["error"] = text(repair.error);
    return json;
}

CKvRepairReport repairFrom(const Json &json)
{
    return { textAt(json, "category"),
             textAt(json, "name"),
             textAt(json, "target"),
             textAt(json, "standardsFile"),
             json.contains("error") ? textAt(json, "error") : QString() };
}

} // namespace

const char *statusWord(CKvDrawingStatus status)
{
    return kDrawingStatus.at(std::size_t(status));
}

const char *statusWord(CKvStandardsFileStatus status)
{
    return kFileStatus.at(std::size_t(status));
}

const char *kindWord(CKvViolationReportKind kind)
{
    return kKind.at(std::size_t(kind));
}

QString ruleOf(const CKvViolationReport &violation)
{
    return violation.category + QLatin1Char('.') + QLatin1String(kindWord(violation.kind));
}

nlohmann::ordered_json toJson(const CKvDrawingReport &report)
{
    return { { "path", text(report.path) },
             { "status", statusWord(report.status) },
             { "error", text(report.error) },
             { "standards", list(report.standards, fileJson) },
             { "violations", list(report.violations, violationJson) },
             { "output", text(report.output) },
             { "repaired", list(report.repaired, repairJson) },
             { "notRepaired", list(report.notRepaired, failedRepairJson) } };
}

CKvDrawingReport drawingReportFromJson(const nlohmann::ordered_json &json)
{
    CKvDrawingReport report;
    report.path = textAt(json, "path");
    report.status = valueAt<CKvDrawingStatus>(json, "status", kDrawingStatus);
    report.error = textAt(json, "error");
    report.standards = listAt<CKvStandardsFileReport>(json, "standards", fileFrom);
    report.violations = listAt<CKvViolationReport>(json, "violations", violationFrom);
    report.output = textAt(json, "output");
    report.repaired = listAt<CKvRepairReport>(json, "repaired", repairFrom);
    report.notRepaired = listAt<CKvRepairReport>(json, "notRepaired", repairFrom);
    return report;
}

nlohmann::ordered_json toJson(const CKvRunSummary &summary)
{
    return { { "drawings", summary.drawings },
             { "failed", summary.failed },
             { "violations", summary.violations },
             { "ignored", summary.ignored } };
}

nlohmann::ordered_json toolJson()
{
    return { { "name", "kvstandards" }, { "version", toolVersion() } };
}

QByteArray jsonText(const nlohmann::ordered_json &json, int indent)
{
    return QByteArray::fromStdString(
        json.dump(indent, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
}

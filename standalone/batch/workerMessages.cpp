// SPDX-License-Identifier: MIT
#include "workerMessages.h"

#include "reportJson.h"

namespace
{

using Json = nlohmann::ordered_json;

Json text(const QString &value)
{
    return value.toStdString();
}

QString toQString(const Json &json)
{
    return QString::fromStdString(json.get<std::string>());
}

Json texts(const QStringList &values)
{
    Json array = Json::array();
    for (const QString &value : values) {
        array.push_back(text(value));
    }
    return array;
}

QStringList toStringList(const Json &json)
{
    QStringList list;
    for (const Json &element : json) {
        list << toQString(element);
    }
    return list;
}

Json parsed(const QByteArray &line)
{
    return Json::parse(line.constBegin(), line.constEnd());
}

QByteArray toLine(const Json &json)
{
    return jsonText(json, -1) + '\n';
}

Json mapJson(const CKvRepairMap &map)
{
    Json rows = Json::array();
    for (const CKvRepairMapRow &row : map) {
        rows.push_back({ text(row.category),
                         text(row.name),
                         text(row.target),
                         text(row.standardsFile),
                         row.line });
    }
    return rows;
}

CKvRepairMap mapFrom(const Json &rows)
{
    CKvRepairMap map;
    for (const Json &row : rows) {
        map.push_back({ toQString(row.at(0)),
                        toQString(row.at(1)),
                        toQString(row.at(2)),
                        toQString(row.at(3)),
                        row.at(4).get<int>() });
    }
    return map;
}

} // namespace

QByteArray settingsToLine(const CKvJobSettings &settings)
{
    return toLine({ { "command", int(settings.command) },
                    { "standards", texts(settings.check.standards) },
                    { "searchPaths", texts(settings.check.searchPaths) },
                    { "preferred", text(settings.check.preferred) },
                    { "categories", texts(settings.check.categories) },
                    { "candidates", int(settings.check.candidates) },
                    { "map", mapJson(settings.fix.map) },
                    { "isDryRun", settings.fix.isDryRun },
                    { "wantsDifference", settings.fix.wantsDifference },
                    { "keepsBackup", settings.fix.keepsBackup } });
}

CKvJobSettings settingsFromLine(const QByteArray &line)
{
    const Json json = parsed(line);
    CKvJobSettings settings;
    settings.command = CKvCommandKind(json.at("command").get<int>());
    settings.check.standards = toStringList(json.at("standards"));
    settings.check.searchPaths = toStringList(json.at("searchPaths"));
    settings.check.preferred = toQString(json.at("preferred"));
    settings.check.categories = toStringList(json.at("categories"));
    settings.check.candidates = CKvCandidateChoice(json.at("candidates").get<int>());
    settings.fix.map = mapFrom(json.at("map"));
    settings.fix.isDryRun = json.at("isDryRun").get<bool>();
    settings.fix.wantsDifference = json.at("wantsDifference").get<bool>();
    settings.fix.keepsBackup = json.at("keepsBackup").get<bool>();
    return settings;
}

QByteArray jobToLine(const CKvDrawingJob &job)
{
    return toLine({ { "path", text(job.path) }, { "output", text(job.output) } });
}

CKvDrawingJob jobFromLine(const QByteArray &line)
{
    const Json json = parsed(line);
    return { toQString(json.at("path")), toQString(json.at("output")) };
}

QByteArray reportToLine(const CKvDrawingReport &report)
{
    // A difference is in the encoding of the drawing, so it goes as Base64.
    return toLine({ { "report", toJson(report) },
                    { "warnings", texts(report.warnings) },
                    { "difference", report.difference.toBase64().toStdString() },
                    { "usedMapRows", report.usedMapRows } });
}

CKvDrawingReport reportFromLine(const QByteArray &line)
{
    const Json json = parsed(line);
    CKvDrawingReport report = drawingReportFromJson(json.at("report"));
    report.warnings = toStringList(json.at("warnings"));
    report.difference =
        QByteArray::fromBase64(QByteArray::fromStdString(json.at("difference").get<std::string>()));
    report.usedMapRows = json.at("usedMapRows").get<std::vector<int>>();
    return report;
}

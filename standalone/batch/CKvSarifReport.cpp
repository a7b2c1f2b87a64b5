// SPDX-License-Identifier: MIT
#include "CKvSarifReport.h"

#include "CKvCategory.h"
#include "CKvReportOutput.h"
#include "reportJson.h"
#include "toolVersion.h"

#include <QDir>
#include <QUrl>

namespace
{

using Json = nlohmann::ordered_json;

Json message(const QString &text)
{
    return { { "text", text.toStdString() } };
}

/// Paths are relative where the user named them so.
std::string uriOf(const QString &path)
{
    const QUrl url = QDir::isAbsolutePath(path) ? QUrl::fromLocalFile(path) : QUrl();
    return url.isEmpty() ? QUrl::toPercentEncoding(path, "/").toStdString()
                         : url.toEncoded().toStdString();
}

Json location(const QString &path)
{
    return { { "physicalLocation", { { "artifactLocation", { { "uri", uriOf(path) } } } } } };
}

Json rules()
{
    Json list = Json::array();
    for (const CKvCategory *category : allCategories()) {
        const QString word = QString::fromLatin1(category->word);
        const QString noun = QString::fromLatin1(category->noun);
        list.push_back(
            { { "id", QString(word + QStringLiteral(".name")).toStdString() },
              { "shortDescription",
                message(QStringLiteral("The standards have no %1 of that name.").arg(noun)) } });
        list.push_back(
            { { "id", QString(word + QStringLiteral(".properties")).toStdString() },
              { "shortDescription",
                message(QStringLiteral("The %1 has other properties than in the standards.")
                            .arg(noun)) } });
    }
    return list;
}

/// "Layer WALLS: Layer properties are non-standard. LineColor: red, standard blue."
QString resultText(const CKvViolationReport &violation)
{
    QString text =
        QStringLiteral("%1 %2: %3").arg(violation.type, violation.name, violation.message);
    for (const CKvFixReport &fix : violation.fixes) {
        for (const CKvDifferenceReport &row : fix.differences) {
            text += QStringLiteral(" %1: %2, standard %3.")
                        .arg(row.property, row.current, row.standard);
        }
    }
    return text;
}

Json result(const CKvDrawingReport &drawing, const CKvViolationReport &violation)
{
    Json place = location(drawing.path);
    const QString qualified = QStringLiteral("%1/%2").arg(violation.category, violation.name);
    place["logicalLocations"] = Json::array({ { { "name", violation.name.toStdString() },
                                                { "fullyQualifiedName", qualified.toStdString() },
                                                { "kind", "resource" } } });
    Json json = { { "ruleId", ruleOf(violation).toStdString() },
                  { "level", "warning" },
                  { "message", message(resultText(violation)) },
                  { "locations", Json::array({ place }) } };
    if (violation.isIgnored) {
        json["suppressions"] = Json::array(
            { { { "kind", "inSource" },
                { "justification",
                  QStringLiteral("Ignored by %1.").arg(violation.ignoredBy).toStdString() } } });
    }
    return json;
}

Json notification(const QString &path, const QString &text)
{
    return { { "level", "error" },
             { "message", message(text) },
             { "locations", Json::array({ location(path) }) } };
}

void addNotifications(Json &list, const CKvDrawingReport &drawing)
{
    if (drawing.status != CKvDrawingStatus::Checked) {
        const QString text = drawing.error.isEmpty()
            ? QStringLiteral("The drawing has no standards file that can be used.")
            : drawing.error;
        list.push_back(notification(drawing.path, text));
    }
    for (const CKvStandardsFileReport &file : drawing.standards) {
        if (file.status != CKvStandardsFileStatus::Read) {
            list.push_back(notification(drawing.path,
                                        QStringLiteral("Standards file %1: %2")
                                            .arg(QLatin1String(statusWord(file.status)),
                                                 file.error.isEmpty() ? file.path : file.error)));
        }
    }
    for (const CKvRepairReport &repair : drawing.notRepaired) {
        list.push_back(notification(drawing.path,
                                    QStringLiteral("%1 %2 was not repaired: %3")
                                        .arg(repair.category, repair.name, repair.error)));
    }
}

} // namespace

void CKvSarifReport::end(const CKvRunSummary &summary)
{
    Json results = Json::array();
    Json notifications = Json::array();
    for (const CKvDrawingReport &drawing : drawings()) {
        for (const CKvViolationReport &violation : drawing.violations) {
            results.push_back(result(drawing, violation));
        }
        addNotifications(notifications, drawing);
    }
    const bool isSuccessful = summary.exitStatus() != CKvExitStatus::Incomplete;
    const Json driver = { { "name", "kvstandards" },
                          { "version", toolVersion() },
                          { "rules", rules() } };
    const Json invocation = { { "executionSuccessful", isSuccessful },
                              { "toolExecutionNotifications", std::move(notifications) } };
    const Json run = { { "tool", { { "driver", driver } } },
                       { "invocations", Json::array({ invocation }) },
                       { "results", std::move(results) } };
    const Json report = { { "$schema", "https://json.schemastore.org/sarif-2.1.0.json" },
                          { "version", "2.1.0" },
                          { "runs", Json::array({ run }) } };
    output().write(jsonText(report, 2) + '\n');
}

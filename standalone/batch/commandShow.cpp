// SPDX-License-Identifier: MIT
#include "commandShow.h"

#include "CKvBatchSession.h"
#include "CKvLayerListing.h"
#include "CKvTextTable.h"
#include "displayWidth.h"
#include "reportJson.h"
#include "terminal.h"
#include "workOnDrawing.h"

namespace
{

QString remarks(const CKvLayerListing &layer)
{
    QStringList words;
    if (layer.isHidden) {
        words << QStringLiteral("hidden");
    }
    if (layer.isDependent) {
        words << QStringLiteral("external reference");
    }
    if (layer.isIgnored) {
        words << (layer.ignoredBy.isEmpty() ? QStringLiteral("ignored")
                                            : QStringLiteral("ignored by %1").arg(layer.ignoredBy));
    }
    return words.join(QStringLiteral(", "));
}

QString layersText(const std::vector<CKvLayerListing> &layers, bool isColored)
{
    const CKvTextStyle bold = CKvTextStyle::Bold;
    CKvTextTable table;
    table.add({ { QStringLiteral("Layer"), bold },
                { QStringLiteral("LineColor"), bold },
                { QStringLiteral("LineStyle"), bold },
                { QStringLiteral("LineWeight"), bold },
                { QString() } });
    for (const CKvLayerListing &layer : layers) {
        table.add({ { printable(layer.name) },
                    { printable(layer.color) },
                    { printable(layer.lineStyle) },
                    { layer.lineWeight },
                    { printable(remarks(layer)), CKvTextStyle::Faint } });
    }
    return table.toText(0, isColored);
}

nlohmann::ordered_json layerJson(const CKvLayerListing &layer)
{
    return { { "name", layer.name.toStdString() },
             { "handle", layer.handle.toStdString() },
             { "properties",
               { { "LineColor", layer.color.toStdString() },
                 { "LineStyle", layer.lineStyle.toStdString() },
                 { "LineWeight", layer.lineWeight.toStdString() } } },
             { "hidden", layer.isHidden },
             { "externalReference", layer.isDependent },
             { "ignored", layer.isIgnored },
             { "ignoredBy", layer.ignoredBy.toStdString() } };
}

QString layersJson(const QString &drawing, const std::vector<CKvLayerListing> &layers)
{
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const CKvLayerListing &layer : layers) {
        list.push_back(layerJson(layer));
    }
    const nlohmann::ordered_json json = { { "schema", 1 },
                                          { "tool", toolJson() },
                                          { "path", drawing.toStdString() },
                                          { "layers", std::move(list) } };
    return QString::fromUtf8(jsonText(json, 2)) + QLatin1Char('\n');
}

} // namespace

CKvExitStatus commandShow(const CKvDrawingOptions &options)
{
    CKvCheckOptions check;
    check.categories = options.categories;
    const CKvBatchSession session(check);
    std::vector<CKvLayerListing> layers;
    const bool isDone = workOnDrawing(
        options.drawing, [&layers](OdDbDatabase &drawing) { layers = listLayers(drawing); });
    if (!isDone) {
        return CKvExitStatus::Incomplete;
    }
    const bool isPrinted = printOutput(options.format == CKvReportFormat::Json
                                           ? layersJson(options.drawing, layers)
                                           : layersText(layers, wantsColor(options.color)));
    return isPrinted ? CKvExitStatus::Clean : CKvExitStatus::Incomplete;
}

// SPDX-License-Identifier: MIT
#include "CKvJsonReport.h"

#include "CKvReportOutput.h"
#include "reportJson.h"

void CKvJsonReport::addDrawing(const CKvDrawingReport &report)
{
    m_drawings.push_back(report);
}

void CKvJsonReport::end(const CKvRunSummary &summary)
{
    nlohmann::ordered_json drawings = nlohmann::ordered_json::array();
    for (const CKvDrawingReport &drawing : m_drawings) {
        drawings.push_back(toJson(drawing));
    }
    const nlohmann::ordered_json report = { { "schema", 1 },
                                            { "tool", toolJson() },
                                            { "summary", toJson(summary) },
                                            { "drawings", std::move(drawings) } };
    m_output.write(jsonText(report, 2) + '\n');
}

// SPDX-License-Identifier: MIT
#include "CKvJsonReport.h"

#include "CKvReportOutput.h"
#include "reportJson.h"

void CKvJsonReport::end(const CKvRunSummary &summary)
{
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const CKvDrawingReport &drawing : drawings()) {
        list.push_back(toJson(drawing));
    }
    const nlohmann::ordered_json report = { { "schema", 1 },
                                            { "tool", toolJson() },
                                            { "summary", toJson(summary) },
                                            { "drawings", std::move(list) } };
    output().write(jsonText(report, 2) + '\n');
}

// SPDX-License-Identifier: MIT
#include "CKvJsonLinesReport.h"

#include "CKvReportOutput.h"
#include "reportJson.h"

void CKvJsonLinesReport::addDrawing(const CKvDrawingReport &report)
{
    m_output.write(jsonText(toJson(report), -1) + '\n');
    m_output.flush();
}

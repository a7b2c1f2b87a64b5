// SPDX-License-Identifier: MIT
#pragma once

#include "CKvReportWriter.h"

#include <vector>

/// SARIF 2.1.0, which code review services show. An ignored violation is a suppressed result; what
/// could not be done is a notification.
class CKvSarifReport : public CKvReportWriter
{
public:
    /// @param output must outlive the report.
    explicit CKvSarifReport(CKvReportOutput &output)
        : m_output(output)
    {
    }

    void addDrawing(const CKvDrawingReport &report) override;
    void end(const CKvRunSummary &summary) override;

private:
    CKvReportOutput &m_output;
    std::vector<CKvDrawingReport> m_drawings;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvReportWriter.h"

#include <vector>

/// One JSON object for the whole run.
class CKvJsonReport : public CKvReportWriter
{
public:
    /// @param output must outlive the report.
    explicit CKvJsonReport(CKvReportOutput &output)
        : m_output(output)
    {
    }

    void addDrawing(const CKvDrawingReport &report) override;
    void end(const CKvRunSummary &summary) override;

private:
    CKvReportOutput &m_output;
    std::vector<CKvDrawingReport> m_drawings;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvReportWriter.h"

/// One page that needs nothing else: a table for each drawing, the totals at the end.
class CKvHtmlReport : public CKvReportWriter
{
public:
    /// @param output must outlive the report.
    explicit CKvHtmlReport(CKvReportOutput &output)
        : m_output(output)
    {
    }

    void begin() override;
    void addDrawing(const CKvDrawingReport &report) override;
    void end(const CKvRunSummary &summary) override;

private:
    CKvReportOutput &m_output;
};

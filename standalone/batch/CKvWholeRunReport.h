// SPDX-License-Identifier: MIT
#pragma once

#include "CKvReportWriter.h"

#include <vector>

/// A report that can only be written when the run is over: keeps the drawings until then.
class CKvWholeRunReport : public CKvReportWriter
{
public:
    /// @param output must outlive the report.
    explicit CKvWholeRunReport(CKvReportOutput &output)
        : m_output(output)
    {
    }

    void addDrawing(const CKvDrawingReport &report) final { m_drawings.push_back(report); }

protected:
    CKvReportOutput &output() { return m_output; }
    const std::vector<CKvDrawingReport> &drawings() const { return m_drawings; }

private:
    CKvReportOutput &m_output;
    std::vector<CKvDrawingReport> m_drawings;
};

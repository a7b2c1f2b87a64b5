// SPDX-License-Identifier: MIT
#pragma once

#include "CKvReportWriter.h"

/// A JSON object a drawing, each on a line of its own, as soon as the drawing is done.
class CKvJsonLinesReport : public CKvReportWriter
{
public:
    /// @param output must outlive the report.
    explicit CKvJsonLinesReport(CKvReportOutput &output)
        : m_output(output)
    {
    }

    bool takesAnyOrder() const override { return true; }
    void addDrawing(const CKvDrawingReport &report) override;

private:
    CKvReportOutput &m_output;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvReportWriter.h"

/// A table of comma separated values: a row for each differing property of each reported candidate,
/// for each violation without one, and for each drawing and standards file that failed.
class CKvCsvReport : public CKvReportWriter
{
public:
    /// @param output must outlive the report.
    explicit CKvCsvReport(CKvReportOutput &output)
        : m_output(output)
    {
    }

    void begin() override;
    void addDrawing(const CKvDrawingReport &report) override;

private:
    CKvReportOutput &m_output;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvReportWriter.h"

#include <vector>

class QXmlStreamWriter;

/// The XML that build servers read: a suite for each drawing, a failed case for each open
/// violation, a skipped one for each that is ignored, an error for what could not be done.
class CKvJunitReport : public CKvReportWriter
{
public:
    /// @param output must outlive the report.
    /// @param countsIgnored ignored violations are failures too.
    CKvJunitReport(CKvReportOutput &output, bool countsIgnored)
        : m_output(output)
        , m_countsIgnored(countsIgnored)
    {
    }

    void addDrawing(const CKvDrawingReport &report) override;
    void end(const CKvRunSummary &summary) override;

private:
    void writeSuite(QXmlStreamWriter &xml, const CKvDrawingReport &report) const;
    void writeViolation(QXmlStreamWriter &xml, const CKvViolationReport &violation) const;

    CKvReportOutput &m_output;
    bool m_countsIgnored;
    std::vector<CKvDrawingReport> m_drawings;
};

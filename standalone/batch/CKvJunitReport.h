// SPDX-License-Identifier: MIT
#pragma once

#include "CKvWholeRunReport.h"

class QXmlStreamWriter;

/// The XML that build servers read: a suite for each drawing, a failed case for each open
/// violation, a skipped one for each that is ignored, an error for what could not be done.
class CKvJunitReport : public CKvWholeRunReport
{
public:
    /// @param output must outlive the report.
    /// @param countsIgnored ignored violations are failures too.
    CKvJunitReport(CKvReportOutput &output, bool countsIgnored)
        : CKvWholeRunReport(output)
        , m_countsIgnored(countsIgnored)
    {
    }

    void end(const CKvRunSummary &summary) override;

private:
    void writeSuite(QXmlStreamWriter &xml, const CKvDrawingReport &report) const;
    void writeViolation(QXmlStreamWriter &xml, const CKvViolationReport &violation) const;

    bool m_countsIgnored;
};

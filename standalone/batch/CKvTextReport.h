// SPDX-License-Identifier: MIT
#pragma once

#include "CKvReportWriter.h"
#include "CKvTextTable.h"

/// The report for people.
class CKvTextReport : public CKvReportWriter
{
public:
    CKvTextReport(const CKvRunOptions &options, CKvReportOutput &output, bool isColored);

    void addDrawing(const CKvDrawingReport &report) override;
    void end(const CKvRunSummary &summary) override;

private:
    QString heading(const CKvDrawingReport &report) const;
    QString standardsText(const CKvDrawingReport &report) const;
    QString violationsText(const CKvDrawingReport &report) const;
    QString repairsText(const CKvDrawingReport &report) const;
    QString note(const QString &text, CKvTextStyle style) const;

    const CKvRunOptions &m_options;
    CKvReportOutput &m_output;
    bool m_isColored;
};

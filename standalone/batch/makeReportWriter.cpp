// SPDX-License-Identifier: MIT
#include "CKvCsvReport.h"
#include "CKvHtmlReport.h"
#include "CKvJsonLinesReport.h"
#include "CKvJsonReport.h"
#include "CKvJunitReport.h"
#include "CKvReportWriter.h"
#include "CKvSarifReport.h"
#include "CKvTextReport.h"

std::unique_ptr<CKvReportWriter>
makeReportWriter(const CKvRunOptions &options, CKvReportOutput &output, bool isColored)
{
    switch (options.format) {
    case CKvReportFormat::Json:
        return std::make_unique<CKvJsonReport>(output);
    case CKvReportFormat::JsonLines:
        return std::make_unique<CKvJsonLinesReport>(output);
    case CKvReportFormat::Sarif:
        return std::make_unique<CKvSarifReport>(output);
    case CKvReportFormat::Junit:
        return std::make_unique<CKvJunitReport>(output, options.includesIgnored);
    case CKvReportFormat::Html:
        return std::make_unique<CKvHtmlReport>(output);
    case CKvReportFormat::Csv:
        return std::make_unique<CKvCsvReport>(output);
    case CKvReportFormat::Text:
        break;
    }
    return std::make_unique<CKvTextReport>(options, output, isColored);
}

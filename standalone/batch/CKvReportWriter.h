// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchOptions.h"
#include "CKvDrawingReport.h"
#include "CKvRunSummary.h"

#include <memory>

class CKvReportOutput;

/// Writes the report of a run in one format.
class CKvReportWriter
{
public:
    virtual ~CKvReportWriter() = default;
    /// Whether drawings may come in the order in which they are done.
    virtual bool takesAnyOrder() const { return false; }
    virtual void begin() { }
    virtual void addDrawing(const CKvDrawingReport &report) = 0;
    virtual void end(const CKvRunSummary & /*summary*/) { }
};

/// @param output must outlive the writer.
/// @param isColored for the text format: the output understands colours.
std::unique_ptr<CKvReportWriter>
makeReportWriter(const CKvRunOptions &options, CKvReportOutput &output, bool isColored);

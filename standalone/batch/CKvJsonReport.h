// SPDX-License-Identifier: MIT
#pragma once

#include "CKvWholeRunReport.h"

/// One JSON object for the whole run.
class CKvJsonReport : public CKvWholeRunReport
{
public:
    using CKvWholeRunReport::CKvWholeRunReport;

    void end(const CKvRunSummary &summary) override;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvWholeRunReport.h"

/// SARIF 2.1.0, which code review services show. An ignored violation is a suppressed result; what
/// could not be done is a notification.
class CKvSarifReport : public CKvWholeRunReport
{
public:
    using CKvWholeRunReport::CKvWholeRunReport;

    void end(const CKvRunSummary &summary) override;
};

// SPDX-License-Identifier: MIT
#include "CKvRunSummary.h"

#include <algorithm>

namespace
{

bool isComplete(const CKvDrawingReport &report)
{
    const auto isRead = [](const CKvStandardsFileReport &file) {
        return file.status == CKvStandardsFileStatus::Read;
    };
    return report.status == CKvDrawingStatus::Checked && report.notRepaired.empty()
        && std::all_of(report.standards.begin(), report.standards.end(), isRead);
}

} // namespace

void CKvRunSummary::add(const CKvDrawingReport &report)
{
    ++drawings;
    checked += report.status == CKvDrawingStatus::Checked ? 1 : 0;
    failed += report.status == CKvDrawingStatus::Failed ? 1 : 0;
    violations += openViolations(report, m_countsIgnored);
    ignored += int(report.violations.size()) - openViolations(report, /*countsIgnored*/ false);
    repaired += int(report.repaired.size());
    notRepaired += int(report.notRepaired.size());
    m_isIncomplete = m_isIncomplete || !isComplete(report);
}

CKvExitStatus CKvRunSummary::exitStatus() const
{
    if (m_isIncomplete || drawings == 0) {
        return CKvExitStatus::Incomplete;
    }
    return violations > 0 ? CKvExitStatus::Violations : CKvExitStatus::Clean;
}

int openViolations(const CKvDrawingReport &report, bool countsIgnored)
{
    return int(std::count_if(report.violations.begin(),
                             report.violations.end(),
                             [countsIgnored](const CKvViolationReport &violation) {
                                 return countsIgnored || !violation.isIgnored;
                             }));
}

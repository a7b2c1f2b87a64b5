// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingReport.h"
#include "CKvExitStatus.h"

/// What came out of a run in numbers, and how the program ends.
struct CKvRunSummary {
    /// @param countsIgnored ignored violations are counted as open ones too.
    explicit CKvRunSummary(bool countsIgnored)
        : m_countsIgnored(countsIgnored)
    {
    }

    void add(const CKvDrawingReport &report);
    /// Something beside the drawings could not be done: a list or a folder that can't be read.
    void addFailure() { m_isIncomplete = true; }
    /// Incomplete when there was no drawing at all.
    CKvExitStatus exitStatus() const;

    int drawings = 0;
    int checked = 0;
    int failed = 0;
    /// Open ones.
    int violations = 0;
    int ignored = 0;
    int repaired = 0;
    int notRepaired = 0;

private:
    bool m_countsIgnored;
    bool m_isIncomplete = false;
};

/// Violations of a drawing that count for the exit status.
int openViolations(const CKvDrawingReport &report, bool countsIgnored);

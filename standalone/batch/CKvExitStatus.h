// SPDX-License-Identifier: MIT
#pragma once

/// How the program ends. Never depends on the format of the report.
enum class CKvExitStatus : int {
    /// Everything asked for was done, and nothing is in violation.
    Clean = 0,
    /// Everything was checked, and there is an open violation.
    Violations = 1,
    /// Nothing was done.
    WrongUsage = 2,
    /// Something could not be done; the others were. Wins over Violations.
    Incomplete = 3
};

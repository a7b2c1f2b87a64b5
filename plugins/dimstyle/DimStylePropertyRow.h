// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// One property of two dimension styles.
struct DimStylePropertyRow {
    /// In upper case, "DIMADEC" to "ANNOTATIVE".
    QString key;
    QString firstValue;
    QString secondValue;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchTest.h"

/// Checks of one drawing, plans/a.dxf, against this and that standards file.
class CKvStandardsRunTest : public CKvBatchTest
{
protected:
    /// Checks the drawing, with a JSON report.
    CKvBatchRun check(const QStringList &arguments) const;
    /// The drawing with red WALLS and this list.
    void saveDrawing(const QStringList &standards) const;
    /// Standards whose layer WALLS has this colour, and nothing else.
    void saveStandards(const QString &name, int color) const;
    /// "status path" a line, the folder of the test as "/".
    std::string standards(const CKvBatchRun &run) const;
    /// The colour that the recommended candidate of the first violation has.
    static std::string standardColor(const CKvBatchRun &run);
};

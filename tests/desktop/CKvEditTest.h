// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDesktopTest.h"
#include "CKvHostDocument.h"
#include "recordTables.h"

/// A desktop with a drawing of a few records that a test's commands change.
class CKvEditTest : public CKvDesktopTest
{
protected:
    explicit CKvEditTest(const char *version = "AC1032");

    /// Opens another drawing in place of the first.
    void useVersion(const char *version);
    template <class Record> OdSmartPtr<Record> record(CKvRecordKind kind, const char *name)
    {
        return OdSmartPtr<Record>(
            requireRecord(*m_desktop->activeDocument(), kind, text(name), OdDb::kForRead));
    }
    bool has(CKvRecordKind kind, const char *name);
    /// What saving writes now.
    QByteArray saved();
    /// The reason that a line gives; empty when it gives none.
    std::string failureOf(const char *line);
    /// Runs a line and presses Escape at its first question.
    void enterAndBreakOff(const char *line);

    /// The drawing as it is on the disk.
    QByteArray m_before;
};

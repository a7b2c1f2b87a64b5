// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsError.h"
#include "CKvStdsFix.h"
#include "CKvStdsTextStyleRecord.h"
#include "OdDbTextStyleTable.h"
#include "OdDbTextStyleTableRecord.h"

/// One repair of a text style: changes it, renames it, or moves what uses it to another one. The
/// values all come from the fix.
class CKvTextStyleRepair
{
public:
    /// @param drawing, error, fix never null.
    CKvTextStyleRepair(OdDbDatabasePtr drawing, CKvStdsErrorPtr error, const CKvStdsFixPtr &fix);
    ~CKvTextStyleRepair();
    CKvTextStyleRepair(const CKvTextStyleRepair &) = delete;
    CKvTextStyleRepair &operator=(const CKvTextStyleRepair &) = delete;

    /// Does nothing when the fix names no style.
    /// @throws OdError of the drawing, for a name that a style can't have for instance.
    void run();

private:
    /// Null when neither name is in the table, or when the old style can't be changed.
    OdDbTextStyleTableRecordPtr openRepaired(const OdDbTextStyleTablePtr &styles) const;
    void setValues(OdDbTextStyleTableRecord &style) const;
    void setFontStyle(OdDbTextStyleTableRecord &style) const;

    OdDbDatabasePtr m_drawing;
    CKvStdsErrorPtr m_error;
    /// False for the empty fix of a violation without recommendation.
    bool m_hasTarget;
    std::unique_ptr<CKvStdsTextStyleRecord> m_values;
    CKvString m_oldName;
};

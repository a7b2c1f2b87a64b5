// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStandardsSource.h"
#include "CKvStdsError.h"
#include "CKvStdsFix.h"
#include "OdDbLinetypeTable.h"
#include "OdDbLinetypeTableRecord.h"

/// One repair of a line style: takes the record itself out of the standards file, in place of the
/// drawing's or beside it, and moves what used the old one.
class CKvLineStyleRepair
{
public:
    /// @param drawing, error, fix never null.
    CKvLineStyleRepair(OdDbDatabasePtr drawing,
                       CKvStdsErrorPtr error,
                       const CKvStdsFixPtr &fix,
                       CKvStandardsSource standardsDatabase);

    /// Does nothing when the standards file can't be read, or when neither it nor the drawing has
    /// the line style.
    /// @throws OdError of the drawing.
    void run();

private:
    OdDbObjectId bringOver(const OdDbLinetypeTableRecordPtr &standard) const;
    OdDbObjectId takePlaceOf(const OdDbLinetypeTableRecordPtr &existing,
                             const OdDbLinetypeTableRecordPtr &standard) const;
    void redirectUsers(OdDbObjectId targetId) const;
    void switchCurrent() const;
    void purgeOld() const;

    OdDbDatabasePtr m_drawing;
    CKvStdsErrorPtr m_error;
    CKvStandardsSource m_standardsDatabase;
    CKvString m_standardsFile;
    CKvString m_oldName;
    CKvString m_targetName;
    OdDbLinetypeTablePtr m_lineStyles;
};

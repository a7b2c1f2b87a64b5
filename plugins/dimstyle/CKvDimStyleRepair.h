// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStandardsSource.h"
#include "CKvStdsError.h"
#include "CKvStdsFix.h"
#include "OdDbDimStyleTable.h"
#include "OdDbDimStyleTableRecord.h"

/// One repair of a dimension style: changes it, renames it, or moves its users to another one.
class CKvDimStyleRepair
{
public:
    /// @param drawing, error, fix never null.
    CKvDimStyleRepair(OdDbDatabasePtr drawing,
                      CKvStdsErrorPtr error,
                      const CKvStdsFixPtr &fix,
                      CKvStandardsSource standardsDatabase);

    /// Does nothing when the fix names no style of a file that can be read.
    /// @throws OdError of the drawing, for a name that a style can't have for instance.
    void run();

private:
    void writeValues(const OdDbDimStyleTablePtr &styles,
                     const OdDbDimStyleTableRecordPtr &style,
                     const OdDbDimStyleTableRecordPtr &standard) const;
    void moveUsers(const OdDbDimStyleTablePtr &styles, OdDbObjectId newStyleId) const;

    OdDbDatabasePtr m_drawing;
    CKvStdsErrorPtr m_error;
    CKvStandardsSource m_standardsDatabase;
    CKvString m_standardName;
    CKvString m_standardsFile;
    CKvString m_oldName;
};

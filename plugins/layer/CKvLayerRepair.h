// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStandardsSource.h"
#include "CKvStdsError.h"
#include "CKvStdsFix.h"
#include "OdCmColor.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"

/// One repair of a layer: changes it, renames it, or merges it into another one.
class CKvLayerRepair
{
public:
    /// @param drawing, error, fix never null.
    CKvLayerRepair(OdDbDatabasePtr drawing,
                   CKvStdsErrorPtr error,
                   const CKvStdsFixPtr &fix,
                   CKvStandardsSource standardsDatabase);

    /// Does nothing when the fix names no layer, or when its line style is in no file that can be
    /// read.
    /// @throws OdError of the drawing, for a name that a layer can't have for instance.
    void run();

private:
    /// @return false when the repair must stop.
    bool bringInLineStyle();
    bool cloneLineStyle();

    void setValues(const OdDbLayerTableRecordPtr &layer) const;
    /// @return true when the layer has the new name.
    bool renameInPlace(const OdDbLayerTablePtr &layers) const;
    void moveEntities(OdDbObjectId targetId) const;
    void purgeOldLayer(OdDbObjectId oldId) const;

    OdDbDatabasePtr m_drawing;
    CKvStdsErrorPtr m_error;
    CKvStandardsSource m_standardsDatabase;
    OdCmColor m_color;
    OdDb::LineWeight m_lineWeight = OdDb::kLineWeightByDefault;
    /// False for the empty fix of a violation without recommendation.
    bool m_hasTarget;
    CKvString m_targetName;
    CKvString m_lineStyleName;
    CKvString m_standardsFile;
    CKvString m_oldName;
    OdDbObjectId m_lineStyleId;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbEntity.h"

class OdDbTable;
using OdDbTablePtr = OdSmartPtr<OdDbTable>;

/// A table (ACAD_TABLE).
class KV_HOST_API OdDbTable : public OdDbEntity
{
public:
    static OdRxClass *desc();
    static OdDbTablePtr cast(const OdRxObject *object);

    /// The text style of the rows of one type: the table's own, otherwise that of its table style,
    /// otherwise Standard.
    OdDbObjectId textStyle(OdDb::RowType rowType) const;
    /// Gives the rows a text style of the table's own. Cells that have one for themselves keep it.
    /// @param rowTypes any of OdDb::RowType, added up.
    /// @throws OdError when the style is not one of this drawing.
    void setTextStyle(OdDbObjectId styleId, unsigned rowTypes = OdDb::kAllRows);
};

// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObject.h"

class OdDbSymbolTableRecord;
using OdDbSymbolTableRecordPtr = OdSmartPtr<OdDbSymbolTableRecord>;

/// A named record of a table: a layer, a line style, a text style, a dimension style, a block.
class KV_HOST_API OdDbSymbolTableRecord : public OdDbObject
{
public:
    static OdRxClass *desc();
    static OdDbSymbolTableRecordPtr cast(const OdRxObject *object);

    /// Group 2, blanks at the ends included.
    OdString getName() const;
    /// Renames the record and rewrites the name wherever the drawing uses it.
    /// @throws OdError for an empty name, a name with a character that names can't have, a name
    /// that another record has, and for layer 0 and the reserved line styles.
    void setName(const OdString &name);
    /// True for a record of an external reference: flag 16 of group 70, or a bar in the name.
    bool isDependent() const;
};

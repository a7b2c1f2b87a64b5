// SPDX-License-Identifier: MIT
#pragma once

#include "OdCmColor.h"
#include "OdDbSymbolTableRecord.h"

class OdDbLayerTableRecord;
using OdDbLayerTableRecordPtr = OdSmartPtr<OdDbLayerTableRecord>;

/// A layer.
class KV_HOST_API OdDbLayerTableRecord : public OdDbSymbolTableRecord
{
public:
    static OdRxClass *desc();
    static OdDbLayerTableRecordPtr cast(const OdRxObject *object);
    static OdDbLayerTableRecordPtr createObject();

    /// Group 62 without its sign (a negative one switches the layer off), 420 and 430; white when
    /// the file has none.
    OdCmColor color() const;
    /// A layer that was off stays off.
    void setColor(const OdCmColor &color);
    /// Group 370; Default (-3) when the file has none.
    OdDb::LineWeight lineWeight() const;
    void setLineWeight(OdDb::LineWeight lineWeight);
    /// Group 6, Continuous when the file has none. A name that the drawing lacks gives the id of a
    /// stand-in of that name.
    OdDbObjectId linetypeObjectId() const;
    /// @param linetypeId null leaves the line style as it is.
    void setLinetypeObjectId(OdDbObjectId linetypeId);
    /// True when the name begins with "*".
    bool isHidden() const;
};

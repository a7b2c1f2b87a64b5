// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObject.h"

class OdDbEntity;
using OdDbEntityPtr = OdSmartPtr<OdDbEntity>;

/// Something drawn, of any kind, known or not.
class KV_HOST_API OdDbEntity : public OdDbObject
{
public:
    static OdRxClass *desc();
    static OdDbEntityPtr cast(const OdRxObject *object);

    /// Group 8, layer 0 when the file has none. A name that the drawing lacks gives the id of a
    /// stand-in of that name.
    OdDbObjectId layerId() const;
    OdString layer() const;
    /// Vertices and the end mark of a polyline or insertion go along where they had the same layer.
    void setLayer(OdDbObjectId layerId, bool doSubents = true, bool allowHiddenLayer = false);

    /// Group 6, ByLayer when the file has none. A name that the drawing lacks gives the id of a
    /// stand-in of that name.
    OdDbObjectId linetypeId() const;
    /// As setLayer, for the line style.
    /// @throws OdError when the line style is not one of this drawing.
    void setLinetype(OdDbObjectId linetypeId, bool doSubents = true);
};

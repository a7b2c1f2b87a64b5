// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbEntity.h"

class OdDbDimension;
using OdDbDimensionPtr = OdSmartPtr<OdDbDimension>;

/// A dimension of any kind, those of arcs and large radii included.
class KV_HOST_API OdDbDimension : public OdDbEntity
{
public:
    static OdRxClass *desc();
    static OdDbDimensionPtr cast(const OdRxObject *object);

    /// Group 3, Standard when the file has none. A name that the drawing lacks gives the id of a
    /// stand-in of that name.
    OdDbObjectId dimensionStyle() const;
    /// What the dimension overrides for itself stays as it is.
    void setDimensionStyle(OdDbObjectId styleId);
};

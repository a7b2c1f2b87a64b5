// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbEntity.h"

class OdDbLeader;
using OdDbLeaderPtr = OdSmartPtr<OdDbLeader>;

/// A leader: a line with an arrow that leads to a text.
class KV_HOST_API OdDbLeader : public OdDbEntity
{
public:
    static OdRxClass *desc();
    static OdDbLeaderPtr cast(const OdRxObject *object);

    /// Group 3, Standard when the file has none. A name that the drawing lacks gives the id of a
    /// stand-in of that name.
    OdDbObjectId dimensionStyle() const;
    /// What the leader overrides for itself stays as it is.
    void setDimensionStyle(OdDbObjectId styleId);
};

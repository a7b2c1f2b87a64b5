// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbEntity.h"

class OdDbMText;
using OdDbMTextPtr = OdSmartPtr<OdDbMText>;

/// A text of several lines (MTEXT).
class KV_HOST_API OdDbMText : public OdDbEntity
{
public:
    static OdRxClass *desc();
    static OdDbMTextPtr cast(const OdRxObject *object);

    /// Group 7, Standard when the file has none. A name that the drawing lacks gives the id of a
    /// stand-in of that name.
    OdDbObjectId textStyle() const;
    /// @throws OdError when the style is not one of this drawing.
    void setTextStyle(OdDbObjectId styleId);
};

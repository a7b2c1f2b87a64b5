// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbEntity.h"

class OdDbArcAlignedText;
using OdDbArcAlignedTextPtr = OdSmartPtr<OdDbArcAlignedText>;

/// A text along an arc (ARCALIGNEDTEXT).
class KV_HOST_API OdDbArcAlignedText : public OdDbEntity
{
public:
    static OdRxClass *desc();
    static OdDbArcAlignedTextPtr cast(const OdRxObject *object);

    /// Group 7, Standard when the file has none. A name that the drawing lacks gives the id of a
    /// stand-in of that name.
    OdDbObjectId textStyle() const;
    /// @throws OdError when the style is not one of this drawing.
    void setTextStyle(OdDbObjectId styleId);
};

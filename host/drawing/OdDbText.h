// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbEntity.h"

class OdDbText;
using OdDbTextPtr = OdSmartPtr<OdDbText>;

/// A text of one line (TEXT), or what is like one.
class KV_HOST_API OdDbText : public OdDbEntity
{
public:
    static OdRxClass *desc();
    static OdDbTextPtr cast(const OdRxObject *object);

    /// Group 7, Standard when the file has none. A name that the drawing lacks gives the id of a
    /// stand-in of that name.
    OdDbObjectId textStyle() const;
    /// The text that an attribute of several lines holds goes along where it had the same style.
    /// @throws OdError when the style is not one of this drawing.
    void setTextStyle(OdDbObjectId styleId);
};

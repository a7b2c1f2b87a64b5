// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbEntity.h"

class RText;
using RTextPtr = OdSmartPtr<RText>;

/// A text that comes from a file or an expression (RTEXT).
class KV_HOST_API RText : public OdDbEntity
{
public:
    static OdRxClass *desc();
    static RTextPtr cast(const OdRxObject *object);

    /// Group 7, Standard when the file has none. A name that the drawing lacks gives the id of a
    /// stand-in of that name.
    OdDbObjectId textStyleId() const;
    /// @throws OdError when the style is not one of this drawing.
    void setTextStyle(OdDbObjectId styleId);
};

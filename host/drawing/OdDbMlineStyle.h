// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObject.h"

class OdDbMlineStyle;
using OdDbMlineStylePtr = OdSmartPtr<OdDbMlineStyle>;

/// A multiline style.
class KV_HOST_API OdDbMlineStyle : public OdDbObject
{
public:
    static OdRxClass *desc();
    static OdDbMlineStylePtr cast(const OdRxObject *object);

    /// Group 2.
    OdString name() const;
};

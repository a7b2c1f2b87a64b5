// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObject.h"

class OdDbPlaceHolder;
using OdDbPlaceHolderPtr = OdSmartPtr<OdDbPlaceHolder>;

/// Stands for something that the drawing only names: a plot style, whose name is its key in the
/// dictionary of plot styles.
class KV_HOST_API OdDbPlaceHolder : public OdDbObject
{
public:
    static OdRxClass *desc();
    static OdDbPlaceHolderPtr cast(const OdRxObject *object);
};

// SPDX-License-Identifier: MIT
#include "reservedLineStyles.h"

bool isReservedLineStyle(const OdDbDatabase &drawing, OdDbObjectId id)
{
    return id == drawing.getLinetypeByLayerId() || id == drawing.getLinetypeByBlockId()
        || id == drawing.getLinetypeContinuousId();
}

// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObjectId.h"
#include "hostApi.h"

/// Whether texts and dimensions of a style keep their size on paper whatever the scale.
class KV_HOST_API CKvObjectAnnotationContext
{
public:
    /// @param matchesOrientation receives whether they are turned with the sheet; may be null, and
    /// stays as it is for an object that is not annotative.
    /// @return false for null and for an object that can't be annotative.
    static bool IsAnnotative(OdDbObjectId id, bool *matchesOrientation);
    /// Opens the object for writing when there is something to change.
    /// @return false when the object can't be annotative.
    static bool SetAnnotative(OdDbObjectId id, bool isAnnotative, bool matchesOrientation);
};

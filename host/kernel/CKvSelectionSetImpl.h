// SPDX-License-Identifier: MIT
#pragma once

#include "CKvSelectionSet.h"
#include "OdDbObjectId.h"

/// The objects of a selection.
class KV_HOST_API CKvSelectionSetImpl : public CKvSelectionSet
{
public:
    virtual OdDbObjectIdArray selectedObjectIds() const = 0;
    virtual void clearSelection() = 0;
};

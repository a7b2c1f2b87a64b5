// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObjectId.h"

/// The objects of a drawing that a scan may visit.
struct CKvStdsObjectList {
    /// What a restricted run was given, and what of it takes part.
    OdDbObjectIdArray selected;
    /// The whole table; in a restricted run the selected objects stand before it.
    OdDbObjectIdArray all;
    bool useAll = true;

    /// The list that the scan walks.
    const OdDbObjectIdArray &active() const { return useAll ? all : selected; }
};

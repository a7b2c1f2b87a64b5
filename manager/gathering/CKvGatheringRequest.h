// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"
#include "OdDbDatabase.h"
#include "OdDbObjectId.h"

#include <vector>

/// What a gathering pass is to check, and against what.
struct CKvGatheringRequest {
    OdDbDatabasePtr drawing;
    CKvString drawingName;
    /// The bare names, position by position the same files as the paths.
    std::vector<CKvString> standardsNames;
    std::vector<CKvString> standardsPaths;
    /// Only these objects; everything when empty.
    OdDbObjectIdArray ids;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsRecord.h"
#include "OdCmColor.h"
#include "OdDb.h"

/// A layer's values.
struct CKvStdsLayerRecord : CKvStdsRecord {
    OdCmColor color;
    CKvString lineStyleName;
    OdDb::LineWeight lineWeight = OdDb::kLineWeightByDefault;
};

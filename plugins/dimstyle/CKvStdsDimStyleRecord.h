// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsRecord.h"
#include "OdDbObjectId.h"

/// Where a dimension style is found. Its values are not kept: each comparison opens the style anew.
struct CKvStdsDimStyleRecord : CKvStdsRecord {
    /// Always empty.
    CKvString firstSpareText;
    CKvString secondSpareText;
    OdDbObjectId objectId;
};

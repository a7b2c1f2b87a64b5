// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsRecord.h"

#include <cstdint>

/// A line style's values.
struct CKvStdsLineStyleRecord : CKvStdsRecord {
    std::int32_t dashCount = 0;
    double patternLength = 0;
};

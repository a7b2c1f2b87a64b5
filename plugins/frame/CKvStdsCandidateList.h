// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsRecord.h"
#include "OdArray.h"

/// Records that violations are offered, in the order of the plug-in's records, and their fixes in
/// step with them. Copies share both arrays.
struct CKvStdsCandidateList {
    OdArray<CKvStdsRecord *> records;
    OdArray<CKvStdsFixPtr> fixes;

    void append(CKvStdsRecord *record)
    {
        records.append(record);
        fixes.append(record->fix);
    }
};

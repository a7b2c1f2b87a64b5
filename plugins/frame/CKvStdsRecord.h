// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsFix.h"

/// One record of a standards file. Each category adds the values that it compares. Also the values
/// of a drawing's object, or of a violation, while they are compared: then without file and fix.
struct CKvStdsRecord {
    virtual ~CKvStdsRecord() = default;

    /// As spelled in the file.
    CKvString name;
    /// Full path; empty in the values of a drawing's object.
    CKvString standardsFile;
    /// The record as a candidate, made once and shared by all violations that offer it.
    CKvStdsFixPtr fix;
    /// Place among the records of the plug-in; -1 in the values of a drawing's object.
    int position = -1;

protected:
    CKvStdsRecord() = default;
    CKvStdsRecord(const CKvStdsRecord &) = default;
    CKvStdsRecord &operator=(const CKvStdsRecord &) = default;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsError.h"
#include "CKvStdsFix.h"
#include "CKvStdsPlugins.h"

#include <cstdint>

/// One entry of the list that an audit hands on. Copies share the objects and the array of fixes.
struct CKvStdsViolation {
    CKvStdsErrorPtr error;
    /// The plug-in that reported the violation and will repair it.
    CKvStdsPluginsPtr plugin;
    /// In the order of collectFixes; may be empty.
    OdArray<CKvStdsFixPtr> fixes;
    /// Index into fixes, -1 for none.
    std::int32_t recommendedFix = -1;
    /// Login name from the object's stamp when it was audited; empty for none.
    CKvString ignoredBy;
    bool fixedAutomatically = false;
    bool ignored = false;
    bool fixedManually = false;
};

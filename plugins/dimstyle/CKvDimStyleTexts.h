// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"

/// The texts about dimension styles, translated each time. The names of the properties are in
/// dimStylePropertyLabel.h.
struct CKvDimStyleTexts {
    static CKvString description();
    static CKvString pluginName();
    static CKvString objectTypeLabel();
    static CKvString messageWord();
};

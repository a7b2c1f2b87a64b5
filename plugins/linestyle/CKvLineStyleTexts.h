// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"

/// The texts about line styles, translated each time. The property names are also the keys of the
/// values in a violation and in a fix.
struct CKvLineStyleTexts {
    static CKvString description();
    static CKvString pluginName();
    static CKvString objectTypeLabel();
    static CKvString messageWord();

    static CKvString nameProperty();
    static CKvString dashesProperty();
    static CKvString patternLengthProperty();
};

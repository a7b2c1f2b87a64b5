// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"

/// The texts about layers, translated each time. The property names are also the keys of the values
/// in a violation and in a fix.
struct CKvLayerTexts {
    static CKvString description();
    static CKvString pluginName();
    static CKvString objectTypeLabel();
    static CKvString messageWord();

    static CKvString nameProperty();
    static CKvString lineColorProperty();
    static CKvString lineWeightProperty();
    static CKvString lineStyleProperty();
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"

/// The texts about text styles, translated each time. The property names are also the keys of the
/// values in a violation and in a fix.
struct CKvTextStyleTexts {
    static CKvString description();
    static CKvString pluginName();
    static CKvString objectTypeLabel();
    static CKvString messageWord();

    static CKvString nameProperty();
    static CKvString fontProperty();
    static CKvString bigFontProperty();
    static CKvString textHeightProperty();
    static CKvString upsideDownProperty();
    static CKvString verticalProperty();
    static CKvString backwardsProperty();
    static CKvString widthProperty();
    static CKvString obliqueAngleProperty();
    static CKvString fontStyleProperty();
    static CKvString annotativeProperty();
    static CKvString matchOrientationProperty();
};

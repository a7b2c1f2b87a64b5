// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsRecord.h"

/// A text style's values.
struct CKvStdsTextStyleRecord : CKvStdsRecord {
    CKvString fontFile;
    CKvString bigFontFile;
    /// In drawing units.
    double textSize = 0;
    bool isUpsideDown = false;
    bool isVertical = false;
    bool isBackwards = false;
    double xScale = 0;
    /// In radians.
    double obliquingAngle = 0;
    /// "Bold Italic", "Bold", "Italic" or "Normal", never translated; empty for a font of shapes.
    CKvString fontStyle;
    bool annotative = false;
    bool matchOrientation = false;
};

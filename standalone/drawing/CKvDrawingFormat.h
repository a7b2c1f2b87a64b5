// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTextCodec.h"
#include "tagWriting.h"

/// How a drawing writes things down: form and spelling of its tags, encoding of its texts, version.
struct CKvDrawingFormat {
    CKvTagStyle style;
    CKvTextCodec codec;
    /// The number in $ACADVER: 1009 for R12, 1015 for R2000, 1032 for R2018. Smaller than 1006 for
    /// a value that is none.
    int version = 1032;

    /// From R13 (AC1012) on objects have owners and can carry dictionaries.
    bool hasDictionaries() const { return version >= 1012; }
};

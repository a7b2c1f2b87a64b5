// SPDX-License-Identifier: MIT
#pragma once

#include "CKvFileImage.h"
#include "CKvTag.h"
#include "tagWriting.h"

/// How a file is written down, as its first bytes tell.
struct CKvFileForm {
    CKvTagStyle style;
    /// Offset of the first tag: behind a byte order mark or the mark of a binary file.
    std::size_t begin = 0;
};

/// @throws CKvDxfError for what is no DXF file and is recognised: an empty file, DWG, UTF-16, a
/// packed file.
CKvFileForm recognisedForm(const CKvFileImage &image);

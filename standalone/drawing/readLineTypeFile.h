// SPDX-License-Identifier: MIT
#pragma once

#include "CKvLineTypeDefinition.h"

/// Reads one line style from a .lin file: records of two lines, "*NAME,description" and "A," with
/// the dash lengths, complex elements in square brackets, ";;" beginning a comment.
/// @param name found without regard to case; the first of the file counts.
/// @throws OdError 156 when the file can't be opened or has no style of that name; CKvDxfError with
/// file, line and reason when the definition can't be read.
CKvLineTypeDefinition readLineTypeFile(const QString &path, const QString &name);

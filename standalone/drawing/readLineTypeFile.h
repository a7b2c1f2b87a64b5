// SPDX-License-Identifier: MIT
#pragma once

#include "CKvLineTypeDefinition.h"

#include <QStringList>

/// Reads one line style from a .lin file: records of two lines, "*NAME,description" and "A," with
/// the dash lengths, complex elements in square brackets, ";;" beginning a comment.
/// @param name found without regard to case; the first of the file counts.
/// @throws OdError 156 when the file can't be opened or has no style of that name; CKvDxfError with
/// file, line and reason when the definition can't be read.
CKvLineTypeDefinition readLineTypeFile(const QString &path, const QString &name);
/// The line styles that the file defines, each once, in its order.
/// @throws OdError 156 when the file can't be opened.
QStringList lineTypeNames(const QString &path);
/// Reads the second line of a record alone, as a user may type it: "A,12.7,-6.35" or
/// "12.7,-6.35".
/// @throws CKvDxfError with the reason, without file and line.
std::vector<CKvLineTypeDefinition::Element> readLineTypePattern(const QString &pattern);

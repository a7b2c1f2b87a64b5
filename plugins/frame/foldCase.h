// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The text with each character folded by itself, so that two texts are equal after folding exactly
/// when CKvString::compareNoCase calls them equal. QString::toCaseFolded is no such thing: it turns
/// "ß" into "ss".
QString foldCase(const QString &text);

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

class QTextCodec;

/// The code page that a drawing names in $DWGCODEPAGE.
/// @param name "ANSI_1252", "dos850", "iso8859-2", "MAC-ROMAN" and the like, in any case.
/// @return windows-1252 for an unknown one, for ASCII, and for one that moves letters or digits to
/// other bytes; null for UTF-8.
QTextCodec *codecForCodePageName(std::string_view name);

/// @param number of the code page, 932 for instance.
/// @return null when there is none.
QTextCodec *codecForCodePage(int number);

/// Turns bytes into text. Bytes that stand for nothing become U+FFFD, the first half of a character
/// at the end too.
QString decodeWith(const QTextCodec &codec, std::string_view bytes);

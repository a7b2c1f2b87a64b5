// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Takes the first word off a line. Blanks set words apart; a text in quotes is one word, without
/// the quotes.
/// @return empty when there is none.
QString takeWord(QString &line);
/// @return the text without the quotes around it, if it has some.
QString unquoted(const QString &text);
/// @return the text as one word, whatever blanks it has.
QString quoted(const QString &text);

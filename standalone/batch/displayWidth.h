// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Columns that a text takes on a terminal: wide East Asian characters take two, combining marks
/// and invisible characters none.
int displayWidth(const QString &text);

/// The text with each control character shown as \xNN, so that a name can't steer the terminal or
/// break a line.
QString printable(const QString &text);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchOptions.h"

#include <QString>

#include <cstdio>

/// Makes the standard streams carry bytes as they are written, UTF-8 where a console asks for a
/// code page. A reader that goes away is a failure to write like any other.
void prepareStandardStreams();
bool isTerminal(std::FILE *stream);
/// Whether to write colours to standard output: under Auto to a terminal only, and not when
/// NO_COLOR is set.
bool wantsColor(CKvWhen when);
/// A line on standard error, in UTF-8.
void printError(const QString &line);
/// Text on standard output, in UTF-8.
/// @return false when it can't be written; standard error then tells why.
bool printOutput(const QString &text);
/// That standard output can't be written, as a sentence.
/// @param systemError errno right after the failure, 0 when nothing set it.
QString outputFailureText(int systemError);

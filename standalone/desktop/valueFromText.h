// SPDX-License-Identifier: MIT
#pragma once

#include "OdDb.h"

#include <QString>

#include <cstdint>

/// Values as users write them in answer to a command. All throw OdError, with a sentence for the
/// user, for what is no such value.

/// ON, YES, TRUE or 1; OFF, NO, FALSE or 0.
bool flagFromText(const QString &text);
/// Both ends belong to the range.
double numberFromText(const QString &text, double least, double most);
std::int64_t wholeNumberFromText(const QString &text, std::int64_t least, std::int64_t most);
/// In millimetres, "0.35" or "0.35 mm"; ByLayer, ByBlock, Default. Only the widths that drawings
/// know are taken.
OdDb::LineWeight lineWeightFromText(const QString &text);

// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDatabase.h"

#include <QString>

#include <functional>

/// Opens a drawing for one command, works on it and, when that changed it, writes it back.
/// @param work does the change.
/// @return false when anything failed; standard error then tells why, and the file is as it was.
bool workOnDrawing(const QString &path, const std::function<void(OdDbDatabase &)> &work);

// SPDX-License-Identifier: MIT
#pragma once

#include "OdResBuf.h"

#include <QString>

/// A system variable that belongs to the host and not to a drawing, letter case aside.
/// @return null when the host has no such variable.
OdResBufPtr hostVariable(const QString &name);
/// Gives a variable of the host a value and keeps it in the settings.
/// @return false when the host has no such variable.
/// @throws OdError_InvalidSysvarValue for a text that is no value of it.
bool setHostVariable(const QString &name, const QString &value);

// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDatabase.h"

/// True for ByLayer, ByBlock and Continuous: told by their ids, so that a second record of such a
/// name is a line style like any other.
bool isReservedLineStyle(const OdDbDatabase &drawing, OdDbObjectId id);

// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDatabase.h"

/// Erases the records that nothing outside the array refers to any more. Records of external
/// references stay.
/// @param ids records of tables of the drawing; null ids are passed over.
void purgeRecords(OdDbDatabase &drawing, OdDbObjectIdArray ids);

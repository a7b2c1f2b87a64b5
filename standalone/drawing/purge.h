// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObjectId.h"

class CKvDrawingStore;

/// Leaves in the array the ids of the records that nothing outside the array refers to, so that a
/// layer that stays keeps its line style. Null ids, erased ones and what can never be erased leave
/// it too.
void keepPurgeable(CKvDrawingStore &store, OdDbObjectIdArray &ids);

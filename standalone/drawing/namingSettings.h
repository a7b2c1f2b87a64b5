// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTableKind.h"
#include "OdDbDimVariable.h"

#include <string>
#include <vector>

class CKvDrawingStore;
class CKvObjectSlot;

/// A dimension setting that gives a record by its name: the arrow blocks of older drawings and of
/// the header, and names that some writers put in place of handles.
struct CKvNamingSetting {
    /// Null for the variable of the header.
    CKvObjectSlot *style;
    OdDbDimVariable variable;
};

/// All settings that mean the record by its name, be it with or without the underscore that the
/// arrows of the format begin with.
std::vector<CKvNamingSetting>
settingsNaming(CKvDrawingStore &store, CKvTableKind kind, const CKvObjectSlot &record);
/// @param encodedName as the drawing spells it.
void nameInSettings(CKvDrawingStore &store,
                    const std::vector<CKvNamingSetting> &settings,
                    const std::string &encodedName);

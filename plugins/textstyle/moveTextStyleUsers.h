// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDatabase.h"

/// Gives the entities that use a text style another one, in all blocks but those of external
/// references. A table is moved, with all its rows, when its title has the style. Dimension styles,
/// multiline styles and table styles keep theirs.
void moveTextStyleUsers(OdDbDatabase &drawing, OdDbObjectId oldId, OdDbObjectId newId);

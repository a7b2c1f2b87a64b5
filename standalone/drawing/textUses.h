// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObjectId.h"

#include <initializer_list>

class CKvObjectSlot;

/// The text style that an entity names in its group 7; Standard when it has none.
CKvObjectSlot &textStyleOf(const CKvObjectSlot &entity);
/// @param anchors a new group 7 stands behind the first of these that is there.
/// @throws OdError when the style is not one of the entity's drawing.
void setTextStyleOf(CKvObjectSlot &entity,
                    OdDbObjectId styleId,
                    std::initializer_list<int> anchors);
/// @throws OdError when the style is not one of the entity's drawing.
void requireTextStyleOf(const CKvObjectSlot &entity, OdDbObjectId styleId);

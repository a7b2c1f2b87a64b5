// SPDX-License-Identifier: MIT
#include "layerState.h"

#include "CKvObjectSlot.h"
#include "OdDbLayerTableRecord.h"
#include "objectTags.h"

CKvLayerState layerState(const OdDbLayerTableRecord &layer)
{
    const CKvObjectSlot &slot = *layer.objectId().slot();
    const auto integer = [&](int code, std::int64_t fallback) {
        const std::optional<CKvTag> tag = findTag(slot, code);
        return tag ? tag->integer(fallback) : fallback;
    };
    const std::int64_t flags = integer(70, 0);
    CKvLayerState state;
    // A colour below 0 says that the layer is off.
    state.isOff = integer(62, 7) < 0;
    state.isFrozen = (flags & CKvLayerState::kFrozenFlag) != 0;
    state.isLocked = (flags & CKvLayerState::kLockedFlag) != 0;
    state.isPlotted = integer(290, 1) != 0;
    return state;
}

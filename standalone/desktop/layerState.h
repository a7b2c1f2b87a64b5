// SPDX-License-Identifier: MIT
#pragma once

class OdDbLayerTableRecord;

/// The switches of a layer, which no check looks at.
struct CKvLayerState {
    /// Flags of group 70.
    static constexpr int kFrozenFlag = 1;
    static constexpr int kLockedFlag = 4;

    bool isOff = false;
    bool isFrozen = false;
    bool isLocked = false;
    bool isPlotted = true;
};

/// @param layer one of a drawing.
CKvLayerState layerState(const OdDbLayerTableRecord &layer);

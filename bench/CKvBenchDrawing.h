// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a drawing for measuring holds. The same numbers give the same bytes.
struct CKvBenchDrawing {
    /// Layers named LAYER-1, LAYER-2 and so on, besides layer 0.
    int layers = 50;
    /// Lines in model space, about 105 bytes each, spread over the layers.
    int entities = 0;
    /// All lines stand on LAYER-1.
    bool isOnOneLayer = false;
    /// Colour index of the layers.
    int color = 1;

    /// The number of lines that makes a file of about that size.
    static int entitiesForMegabytes(int megabytes) { return megabytes * 9500; }
    /// Writes the drawing as R2000 in ASCII.
    /// @return false when the file can't be written.
    bool write(const QString &path) const;
};

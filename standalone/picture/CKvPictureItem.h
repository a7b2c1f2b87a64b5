// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBox.h"

#include <QString>

#include <cstdint>
#include <vector>

class CKvObjectSlot;

/// Points of the picture's pool: the line through them, or a dot for one alone.
struct CKvPathShape {
    std::uint32_t first = 0;
    std::uint32_t count = 0;
    /// Of the line, in drawing units; 0 for one that is as wide as its lineweight.
    double width = 0;
    bool isClosed = false;
};

/// center + u cos t + v sin t, from start over sweep: circle, arc and ellipse under any transform.
struct CKvArcShape {
    QPointF center;
    QPointF u;
    QPointF v;
    double start = 0;
    double sweep = 0;
};

/// A straight line without end, or with one end.
struct CKvRayShape {
    QPointF base;
    QPointF direction;
    bool isEndlessBothWays = false;
};

/// One line of text. The placement takes units of capital height, from the left end of the base
/// line, to the plane.
struct CKvTextShape {
    QString text;
    std::uint32_t font = 0;
    QTransform placement;
    /// In units of capital height.
    double width = 0;
};

/// A block drawn in one or more places.
struct CKvInsertShape {
    std::uint32_t block = 0;
    QTransform placement;
    int columns = 1;
    int rows = 1;
    /// From one column, or row, to the next.
    QPointF columnStep;
    QPointF rowStep;
};

/// A family of parallel lines of a hatch pattern.
struct CKvHatchFamily {
    /// A point of the first line, and its direction.
    QPointF base;
    QPointF direction;
    /// From one line to the next.
    QPointF step;
    std::vector<double> dashes;
};

/// Rings of the picture's pool, filled where an odd number of them lies around.
struct CKvAreaShape {
    std::uint32_t firstRing = 0;
    std::uint32_t ringCount = 0;
    /// Empty for a solid fill.
    std::vector<CKvHatchFamily> families;
};

/// One thing to draw.
struct CKvPictureItem {
    enum class Kind : std::uint8_t { Path, Arc, Ray, Text, Insert, Area };
    Kind kind = Kind::Path;
    /// Its entity was changed or erased; it is drawn no more.
    bool isDead = false;
    std::uint32_t shape = 0;
    std::uint32_t layer = 0;
    std::uint32_t style = 0;
    const CKvObjectSlot *entity = nullptr;
    CKvBox box;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBox.h"
#include "CKvPictureItem.h"

#include <QLineF>

#include <vector>

/// One line of a hatch pattern within its area.
struct CKvHatchLine {
    QLineF line;
    /// Distance from the line's first point to the beginning of a dash.
    double dashStart = 0;
};

/// The lines of one family inside an area, all in pixels.
/// @param rings filled where an odd number of them lies around.
/// @param sight lines wholly outside are left out.
/// @param isDense set when the lines lie too close to be told apart; there is no line then.
std::vector<CKvHatchLine> hatchLines(const std::vector<std::vector<QPointF>> &rings,
                                     const CKvHatchFamily &family,
                                     const CKvBox &sight,
                                     bool &isDense);

// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>

/// The colour of an index of the drawing's palette.
/// @param index 1 to 255; 7, and anything outside, is white.
QRgb aciColor(int index);

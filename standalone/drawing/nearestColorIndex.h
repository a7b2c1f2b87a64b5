// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// The index of the standard palette, 1 to 255, that comes nearest to a true colour; the smallest
/// of several.
int nearestColorIndex(std::uint8_t red, std::uint8_t green, std::uint8_t blue);

// SPDX-License-Identifier: MIT
#include "nearestColorIndex.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace
{

struct CKvRgb {
    int red;
    int green;
    int blue;
};

/// Index 1 is the first.
constexpr std::array<CKvRgb, 9> kNamed = { { { 255, 0, 0 },
                                             { 255, 255, 0 },
                                             { 0, 255, 0 },
                                             { 0, 255, 255 },
                                             { 0, 0, 255 },
                                             { 255, 0, 255 },
                                             { 255, 255, 255 },
                                             { 128, 128, 128 },
                                             { 192, 192, 192 } } };
/// Index 250 is the first.
constexpr std::array<int, 6> kGrays = { 51, 91, 132, 173, 214, 255 };
/// Brightness of each pair of indexes within a hue.
constexpr std::array<int, 5> kLevels = { 255, 165, 127, 76, 38 };

/// Part of one component in a hue: full for 120 degrees around its own, falling to none.
double share(double degreesFromOwn)
{
    double distance = std::fabs(degreesFromOwn);
    distance = std::min(distance, 360 - distance);
    return std::clamp(2 - distance / 60, 0.0, 1.0);
}

/// 24 hues of 15 degrees, ten indexes each: five levels, full and half saturated in turn.
CKvRgb hueColor(int index)
{
    const int hue = (index - 10) / 10;
    const double degrees = 15.0 * hue;
    const int level = kLevels[std::size_t(index % 10 / 2)];
    const double least = index % 2 == 0 ? 0 : 0.5;
    const auto component = [&](double own) {
        return int(level * (least + (1 - least) * share(degrees - own)));
    };
    return { component(0), component(120), component(240) };
}

CKvRgb paletteColor(int index)
{
    if (index < 10) {
        return kNamed[std::size_t(index - 1)];
    }
    if (index >= 250) {
        const int gray = kGrays[std::size_t(index - 250)];
        return { gray, gray, gray };
    }
    return hueColor(index);
}

} // namespace

int nearestColorIndex(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    int nearest = 0;
    int least = std::numeric_limits<int>::max();
    for (int index = 1; index <= 255; ++index) {
        const CKvRgb color = paletteColor(index);
        const int distance = (color.red - red) * (color.red - red)
            + (color.green - green) * (color.green - green)
            + (color.blue - blue) * (color.blue - blue);
        if (distance < least) {
            least = distance;
            nearest = index;
        }
    }
    return nearest;
}

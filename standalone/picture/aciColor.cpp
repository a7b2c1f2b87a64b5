// SPDX-License-Identifier: MIT
#include "aciColor.h"

#include <array>

namespace
{

constexpr std::array<QRgb, 10> kNamed = { 0xffffffff, 0xffff0000, 0xffffff00, 0xff00ff00,
                                          0xff00ffff, 0xff0000ff, 0xffff00ff, 0xffffffff,
                                          0xff808080, 0xffc0c0c0 };
constexpr std::array<QRgb, 6> kGreys = { 0xff333333, 0xff5b5b5b, 0xff848484,
                                         0xffadadad, 0xffd6d6d6, 0xffffffff };
/// Brightness of the five pairs of each hue.
constexpr std::array<int, 5> kBrightness = { 255, 165, 127, 76, 38 };
constexpr int kStepsOfHue = 24;

/// Part of a primary colour, 0 to 4, at a step of the colour wheel that counts from its own hue.
int quartersAt(int step)
{
    const int distance = step > kStepsOfHue / 2 ? kStepsOfHue - step : step;
    return distance <= 4 ? 4 : distance >= 8 ? 0 : 8 - distance;
}

int component(int hueStep, int brightness, bool isPale)
{
    const int full = brightness * quartersAt(hueStep % kStepsOfHue) / 4;
    // Pale colours lie halfway between the pure one and the grey of its brightness.
    return isPale ? (full + brightness) / 2 : full;
}

} // namespace

QRgb aciColor(int index)
{
    if (index < 0 || index > 255) {
        return kNamed[7];
    }
    if (index < int(kNamed.size())) {
        return kNamed[std::size_t(index)];
    }
    if (index >= 250) {
        return kGreys[std::size_t(index - 250)];
    }
    const int hue = index / 10 - 1;
    const int brightness = kBrightness[std::size_t(index % 10 / 2)];
    const bool isPale = index % 2 == 1;
    return qRgb(component(hue, brightness, isPale),
                component(hue + kStepsOfHue * 2 / 3, brightness, isPale),
                component(hue + kStepsOfHue / 3, brightness, isPale));
}

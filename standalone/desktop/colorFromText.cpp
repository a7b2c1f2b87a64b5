// SPDX-License-Identifier: MIT
#include "colorFromText.h"

#include "OdError.h"

#include <QStringList>

#include <array>
#include <cstdint>

namespace
{

constexpr std::array<const char *, 7> kNames = { "red",  "yellow",  "green", "cyan",
                                                 "blue", "magenta", "white" };
// What old screens show for a true colour; the nearest one is the reader's affair.
constexpr int kIndexOfTrueColor = 7;

} // namespace

OdCmColor colorFromText(const QString &text)
{
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        if (text.compare(QLatin1String(kNames[i]), Qt::CaseInsensitive) == 0) {
            return OdCmColor::byIndex(int(i) + 1);
        }
    }
    bool isNumber = false;
    const int index = text.toInt(&isNumber);
    if (isNumber && index >= 1 && index <= 255) {
        return OdCmColor::byIndex(index);
    }
    const QStringList parts = text.split(QLatin1Char(','));
    std::array<std::uint8_t, 3> components = {};
    bool isColor = parts.size() == 3;
    for (int i = 0; isColor && i < 3; ++i) {
        const int component = parts[i].toInt(&isColor);
        isColor = isColor && component >= 0 && component <= 255;
        components[std::size_t(i)] = std::uint8_t(component);
    }
    if (!isColor) {
        throw OdError(OdResult::kInvalidInput,
                      "\"" + text.toStdString()
                          + "\" is no colour: 1 to 255, red to white, or R,G,B.");
    }
    return OdCmColor::byColor(components[0], components[1], components[2], kIndexOfTrueColor);
}

OdCmColor entityColorFromText(const QString &text)
{
    constexpr int kByBlock = 0;
    if (text.compare(QLatin1String("ByLayer"), Qt::CaseInsensitive) == 0) {
        return OdCmColor();
    }
    if (text.compare(QLatin1String("ByBlock"), Qt::CaseInsensitive) == 0) {
        return OdCmColor::byIndex(kByBlock);
    }
    return colorFromText(text);
}

// SPDX-License-Identifier: MIT
#include "OdCmColor.h"

#include <algorithm>
#include <array>
#include <limits>

namespace
{

constexpr int kByBlockIndex = 0;
constexpr int kByLayerIndex = 256;

// Index 1 is the first.
constexpr std::array<const char *, 7> kIndexNames = { "red",  "yellow",  "green", "cyan",
                                                      "blue", "magenta", "white" };

std::int16_t storedIndex(int index)
{
    using Limits = std::numeric_limits<std::int16_t>;
    return std::int16_t(std::clamp<int>(index, Limits::min(), Limits::max()));
}

OdString indexName(int index)
{
    if (index >= 1 && index <= int(kIndexNames.size())) {
        return OdString(kIndexNames[std::size_t(index - 1)]);
    }
    return OdString(QString::number(index));
}

} // namespace

OdCmColor OdCmColor::byIndex(int index)
{
    OdCmColor color;
    color.m_index = storedIndex(index);
    color.m_method = index == kByLayerIndex ? Method::kByLayer
        : index == kByBlockIndex            ? Method::kByBlock
                                            : Method::kByIndex;
    return color;
}

OdCmColor OdCmColor::byColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue, int index)
{
    OdCmColor color;
    color.m_method = Method::kByColor;
    color.m_index = storedIndex(index);
    color.m_red = red;
    color.m_green = green;
    color.m_blue = blue;
    return color;
}

OdString OdCmColor::colorNameForDisplay() const
{
    if (isByLayer()) {
        return OdString("ByLayer");
    }
    if (isByBlock()) {
        return OdString("ByBlock");
    }
    if (!m_bookName.isEmpty()) {
        return m_bookName;
    }
    if (isByColor()) {
        return OdString(QStringLiteral("%1,%2,%3").arg(m_red).arg(m_green).arg(m_blue));
    }
    return indexName(m_index);
}

bool operator==(const OdCmColor &a, const OdCmColor &b)
{
    if (a.m_method != b.m_method || a.m_bookName != b.m_bookName) {
        return false;
    }
    if (a.isByColor()) {
        return a.m_red == b.m_red && a.m_green == b.m_green && a.m_blue == b.m_blue;
    }
    // The other methods have neither; an index may be left over from before a setMethod.
    return !a.isByIndex() || a.m_index == b.m_index;
}

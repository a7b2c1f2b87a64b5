// SPDX-License-Identifier: MIT
#pragma once

#include "OdString.h"
#include "hostApi.h"

#include <cstdint>

/// A colour of the drawing: by layer, by block, by index, or in red, green and blue with the index
/// that stands for it on old screens. Indexes: 0 by block, 1 to 255, 256 by layer.
class KV_HOST_API OdCmColor
{
public:
    enum class Method { kByLayer, kByBlock, kByIndex, kByColor, kForeground, kNone };

    /// By layer.
    OdCmColor() = default;
    static OdCmColor byIndex(int index);
    /// @param index what the file keeps beside the true colour (group 62 beside 420).
    static OdCmColor byColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue, int index);

    Method method() const { return m_method; }
    bool isByLayer() const { return m_method == Method::kByLayer; }
    bool isByBlock() const { return m_method == Method::kByBlock; }
    bool isByIndex() const { return m_method == Method::kByIndex; }
    bool isByColor() const { return m_method == Method::kByColor; }
    bool isForeground() const { return m_method == Method::kForeground; }
    bool isNone() const { return m_method == Method::kNone; }
    void setMethod(Method method) { m_method = method; }

    std::int16_t colorIndex() const { return m_index; }
    std::uint8_t red() const { return m_red; }
    std::uint8_t green() const { return m_green; }
    std::uint8_t blue() const { return m_blue; }
    /// Group 430, "BOOK$NAME"; empty for a colour of no book.
    const OdString &bookName() const { return m_bookName; }
    void setBookName(const OdString &name) { m_bookName = name; }

    /// ByLayer, ByBlock; the book's name; red to white for 1 to 7; any other index as a number; a
    /// true colour as "R,G,B" in decimal.
    OdString colorNameForDisplay() const;

    /// Equal when method, index or components, and book name are.
    friend KV_HOST_API bool operator==(const OdCmColor &a, const OdCmColor &b);
    friend bool operator!=(const OdCmColor &a, const OdCmColor &b) { return !(a == b); }

private:
    Method m_method = Method::kByLayer;
    std::int16_t m_index = 256;
    std::uint8_t m_red = 0;
    std::uint8_t m_green = 0;
    std::uint8_t m_blue = 0;
    OdString m_bookName;
};

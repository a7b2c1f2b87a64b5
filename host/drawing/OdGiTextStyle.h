// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// What drawing a text needs to know of its style.
class OdGiTextStyle
{
public:
    /// The style's font is one of shapes, not a TrueType font.
    static constexpr std::uint32_t kShxFont = 0x20;

    std::uint32_t flags() const { return m_flags; }
    void setFlags(std::uint32_t flags) { m_flags = flags; }

private:
    std::uint32_t m_flags = 0;
};

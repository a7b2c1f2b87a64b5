// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

/// The tables of a drawing, in the order of their names in kTableNames.
enum class CKvTableKind : std::uint8_t {
    Layer,
    Linetype,
    TextStyle,
    DimStyle,
    Block,
    AppId,
    Viewport,
    View,
    Ucs
};

/// What stands behind TABLE, and behind group 0 of each record.
constexpr std::array<std::string_view, 9> kTableNames = { "LAYER",    "LTYPE",        "STYLE",
                                                          "DIMSTYLE", "BLOCK_RECORD", "APPID",
                                                          "VPORT",    "VIEW",         "UCS" };
constexpr std::size_t kTableCount = kTableNames.size();

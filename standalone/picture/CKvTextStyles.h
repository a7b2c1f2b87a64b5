// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTableKind.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

class CKvDrawingStore;
class CKvObjectSlot;
class CKvPicture;

/// The text styles of a drawing as fonts of its picture.
class CKvTextStyles
{
public:
    struct Style {
        std::uint32_t font = 0;
        double widthFactor = 1;
    };

    CKvTextStyles(CKvDrawingStore &store, CKvPicture &picture)
        : m_store(store)
        , m_picture(picture)
    {
    }
    /// @param encodedName as the file spells it; a style that the drawing lacks looks plain.
    const Style &find(std::string_view encodedName);

private:
    Style read(CKvObjectSlot *record);

    CKvDrawingStore &m_store;
    CKvPicture &m_picture;
    std::unordered_map<std::string, Style> m_styles;
};

// SPDX-License-Identifier: MIT
#include "displayWidth.h"

#include <QVector>

#include <algorithm>
#include <array>

namespace
{

struct Range {
    char32_t first;
    char32_t last;
};

/// Blocks whose characters are wide or full width (Unicode, East Asian Width W and F), ascending.
constexpr std::array<Range, 44> kWide = { {
    { 0x1100, 0x115F }, { 0x231A, 0x231B }, { 0x2329, 0x232A }, { 0x23E9, 0x23EC },
    { 0x23F0, 0x23F0 }, { 0x23F3, 0x23F3 }, { 0x25FD, 0x25FE }, { 0x2614, 0x2615 },
    { 0x2648, 0x2653 }, { 0x267F, 0x267F }, { 0x2693, 0x2693 }, { 0x26A1, 0x26A1 },
    { 0x26AA, 0x26AB }, { 0x26BD, 0x26BE }, { 0x26C4, 0x26C5 }, { 0x26CE, 0x26CE },
    { 0x26D4, 0x26D4 }, { 0x26EA, 0x26EA }, { 0x26F2, 0x26F3 }, { 0x26F5, 0x26F5 },
    { 0x26FA, 0x26FA }, { 0x26FD, 0x26FD }, { 0x2705, 0x2705 }, { 0x270A, 0x270B },
    { 0x2728, 0x2728 }, { 0x274C, 0x274C }, { 0x274E, 0x274E }, { 0x2753, 0x2755 },
    { 0x2757, 0x2757 }, { 0x2795, 0x2797 }, { 0x27B0, 0x27B0 }, { 0x27BF, 0x27BF },
    { 0x2B1B, 0x2B1C }, { 0x2B50, 0x2B50 }, { 0x2B55, 0x2B55 }, { 0x2E80, 0x303E },
    { 0x3041, 0x4DBF }, { 0x4E00, 0xA4CF }, { 0xA960, 0xA97F }, { 0xAC00, 0xD7A3 },
    { 0xF900, 0xFAFF }, { 0xFE30, 0xFE6F }, { 0xFF01, 0xFF60 }, { 0xFFE0, 0xFFE6 },
} };
/// Beyond the first plane: ideographs, and the pictures of 0x1F300 to 0x1FAFF.
constexpr std::array<Range, 6> kWideAbove = { {
    { 0x16FE0, 0x18CFF },
    { 0x1B000, 0x1B2FF },
    { 0x1F18E, 0x1F19A },
    { 0x1F200, 0x1F64F },
    { 0x1F680, 0x1FAFF },
    { 0x20000, 0x3FFFD },
} };

template <std::size_t Count> bool isIn(const std::array<Range, Count> &ranges, char32_t character)
{
    const auto behind = std::upper_bound(
        ranges.begin(), ranges.end(), character, [](char32_t wanted, const Range &range) {
            return wanted < range.first;
        });
    return behind != ranges.begin() && character <= (behind - 1)->last;
}

int widthOf(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
    case QChar::Other_Control:
        return 0;
    default:
        return isIn(kWide, character) || isIn(kWideAbove, character) ? 2 : 1;
    }
}

} // namespace

int displayWidth(const QString &text)
{
    int width = 0;
    for (const uint character : text.toUcs4()) {
        width += widthOf(char32_t(character));
    }
    return width;
}

QString printable(const QString &text)
{
    QString shown;
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control) {
            shown += QStringLiteral("\\x%1").arg(character.unicode(), 2, 16, QLatin1Char('0'));
        } else {
            shown += character;
        }
    }
    return shown;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// How the tags of a file are written down.
enum class CKvTagForm : std::uint8_t {
    /// A line with the group code, a line with the value.
    Ascii,
    /// Codes of two bytes, numbers as the processor has them, texts that end in a zero byte.
    Binary,
    /// As Binary, with codes of one byte (R12 and older).
    BinaryShortCodes,
};

/// One group code with its value, as a view into the bytes it was read from.
struct CKvTag {
    int code = 0;
    CKvTagForm form = CKvTagForm::Ascii;
    /// Ascii: the line without its end. Binary: the bytes of the value, without the zero of a text.
    std::string_view value;
    /// Offsets in the bytes read: first byte of the code, first byte of the value, first byte
    /// behind.
    std::size_t begin = 0;
    std::size_t valueBegin = 0;
    std::size_t end = 0;

    /// The value without blanks at its ends; for texts and handles.
    std::string_view word() const;
    /// A number as integer; fallback for what is none.
    std::int64_t integer(std::int64_t fallback = 0) const;
    double real(double fallback = 0) const;
    /// The value as hexadecimal handle; 0 for what is none.
    std::uint64_t handle() const;
    bool isWord(int wantedCode, std::string_view wanted) const
    {
        return code == wantedCode && word() == wanted;
    }
};

/// @return the text without blanks, tabs and line ends at its ends.
inline std::string_view trimmed(std::string_view text)
{
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}
/// @return the number that hexadecimal digits give; 0 when any character is none or there are
/// over 16.
std::uint64_t handleFromText(std::string_view text);

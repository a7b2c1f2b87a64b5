// SPDX-License-Identifier: MIT
#include "CKvTag.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace
{

/// The processor's own order of bytes is the file's on every machine that this is built for.
template <class T> T fromBytes(std::string_view bytes)
{
    T number {};
    std::memcpy(&number, bytes.data(), sizeof(T));
    return number;
}

std::int64_t clampedInteger(double number)
{
    constexpr double kLimit = 9.0e18;
    if (!(std::abs(number) < kLimit)) {
        return number > 0 ? std::int64_t(kLimit) : std::int64_t(-kLimit);
    }
    return std::int64_t(number);
}

/// @return 16 or more for what is none.
unsigned hexDigit(char c)
{
    const unsigned decimal = unsigned(c) - '0';
    const unsigned letter = (unsigned(c) | 0x20U) - 'a';
    return decimal < 10 ? decimal : letter < 6 ? letter + 10 : ~0U;
}

std::string_view numberWord(std::string_view text)
{
    text = trimmed(text);
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
    }
    return text;
}

} // namespace

std::uint64_t handleFromText(std::string_view text)
{
    constexpr unsigned kBase = 16;
    constexpr std::uint64_t kMostBeforeDigit = ~std::uint64_t(0) / kBase;
    std::uint64_t handle = 0;
    for (const char c : trimmed(text)) {
        const unsigned digit = hexDigit(c);
        if (digit >= kBase || handle > kMostBeforeDigit) {
            return 0;
        }
        handle = handle * kBase + digit;
    }
    return handle;
}

std::string_view CKvTag::word() const
{
    return trimmed(value);
}

std::int64_t CKvTag::integer(std::int64_t fallback) const
{
    if (form != CKvTagForm::Ascii) {
        switch (value.size()) {
        case 1:
            return fromBytes<std::uint8_t>(value);
        case 2:
            return fromBytes<std::int16_t>(value);
        case 4:
            return fromBytes<std::int32_t>(value);
        case 8:
            return fromBytes<std::int64_t>(value);
        default:
            return fallback;
        }
    }
    const std::string_view text = numberWord(value);
    std::int64_t number = 0;
    const auto [stop, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure == std::errc() && (stop == text.data() + text.size() || *stop != '.')) {
        return number;
    }
    // Some writers give whole numbers as reals; numbers too large for 64 bits end here too.
    double real = 0;
    const auto [realEnd, realFailure] =
        std::from_chars(text.data(), text.data() + text.size(), real);
    return realFailure == std::errc() && realEnd != text.data() ? clampedInteger(real) : fallback;
}

double CKvTag::real(double fallback) const
{
    if (form != CKvTagForm::Ascii) {
        return value.size() == sizeof(double) ? fromBytes<double>(value) : fallback;
    }
    const std::string_view text = numberWord(value);
    double number = 0;
    const auto [stop, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failure == std::errc() && stop != text.data() ? number : fallback;
}

std::uint64_t CKvTag::handle() const
{
    return handleFromText(value);
}

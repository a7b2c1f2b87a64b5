// SPDX-License-Identifier: MIT
#include "tagWriting.h"

#include "groupValueType.h"

#include <charconv>
#include <cstring>

namespace
{

template <class T> void appendNumber(std::string &bytes, T number)
{
    char raw[sizeof(T)];
    std::memcpy(raw, &number, sizeof(T));
    bytes.append(raw, sizeof(T));
}

CKvTag textTag(std::string_view value)
{
    CKvTag tag;
    tag.value = value;
    return tag;
}

std::string decodedHex(std::string_view hex)
{
    std::string bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
        bytes.push_back(char(handleFromText(hex.substr(i, 2))));
    }
    return bytes;
}

std::string binaryCode(CKvTagForm form, int code)
{
    std::string bytes;
    if (form == CKvTagForm::BinaryShortCodes && code < 255) {
        bytes.push_back(char(code));
        return bytes;
    }
    if (form == CKvTagForm::BinaryShortCodes) {
        bytes.push_back(char(255));
    }
    appendNumber(bytes, std::uint16_t(code));
    return bytes;
}

/// Chunks of bytes, with the group code before all but the first one.
std::string binaryChunks(CKvTagForm form, int code, std::string_view content)
{
    // Other programs read no longer ones.
    constexpr std::size_t kMostInOne = 127;
    std::string bytes;
    do {
        const std::string_view chunk = content.substr(0, kMostInOne);
        bytes.push_back(char(chunk.size()));
        bytes += chunk;
        content.remove_prefix(chunk.size());
        bytes += content.empty() ? std::string() : binaryCode(form, code);
    } while (!content.empty());
    return bytes;
}

std::string binaryValue(CKvTagForm form, int code, std::string_view value)
{
    std::string bytes;
    switch (groupValueType(code)) {
    case CKvGroupValueType::Bool:
        appendNumber(bytes, std::uint8_t(textTag(value).integer()));
        break;
    case CKvGroupValueType::Int16:
        appendNumber(bytes, std::int16_t(textTag(value).integer()));
        break;
    case CKvGroupValueType::Int32:
        appendNumber(bytes, std::int32_t(textTag(value).integer()));
        break;
    case CKvGroupValueType::Int64:
        appendNumber(bytes, textTag(value).integer());
        break;
    case CKvGroupValueType::Real:
        appendNumber(bytes, textTag(value).real());
        break;
    case CKvGroupValueType::Bytes:
        bytes = binaryChunks(form, code, decodedHex(value));
        break;
    case CKvGroupValueType::Text:
    case CKvGroupValueType::Handle:
        bytes.append(value);
        bytes.push_back('\0');
        break;
    }
    return bytes;
}

std::string spelledTag(const CKvTagStyle &style, int code, std::string_view value)
{
    if (style.form != CKvTagForm::Ascii) {
        return binaryCode(style.form, code) + binaryValue(style.form, code, value);
    }
    std::string text = std::to_string(code);
    if (style.isCodePadded && text.size() < 3) {
        text.insert(0, 3 - text.size(), ' ');
    }
    text.append(style.lineEnd).append(value).append(style.lineEnd);
    return text;
}

} // namespace

void appendTag(std::string &bytes, const CKvTagStyle &style, int code, std::string_view value)
{
    bytes += spelledTag(style, code, value);
}

void insertTag(
    std::string &bytes, std::size_t at, const CKvTagStyle &style, int code, std::string_view value)
{
    bytes.insert(at, spelledTag(style, code, value));
}

void replaceTagValue(std::string &bytes, const CKvTag &tag, std::string_view value)
{
    if (tag.form != CKvTagForm::Ascii) {
        bytes.replace(
            tag.valueBegin, tag.end - tag.valueBegin, binaryValue(tag.form, tag.code, value));
        return;
    }
    // Out of the bytes as they are now: a change of a later tag may have moved them.
    const std::string_view old = std::string_view(bytes).substr(tag.valueBegin, tag.value.size());
    const CKvGroupValueType type = groupValueType(tag.code);
    const bool isText = type == CKvGroupValueType::Text;
    if ((isText ? old : trimmed(old)) == value) {
        return;
    }
    std::string spelled(value);
    const bool isAligned = !isText && !old.empty() && old.front() == ' ';
    if (isAligned && spelled.size() < old.size()) {
        spelled.insert(0, old.size() - spelled.size(), ' ');
    }
    bytes.replace(tag.valueBegin, old.size(), spelled);
}

void removeTag(std::string &bytes, const CKvTag &tag)
{
    bytes.erase(tag.begin, tag.end - tag.begin);
}

std::string asciiValue(const CKvTag &tag)
{
    if (tag.form == CKvTagForm::Ascii) {
        return std::string(tag.value);
    }
    switch (groupValueType(tag.code)) {
    case CKvGroupValueType::Bool:
    case CKvGroupValueType::Int16:
    case CKvGroupValueType::Int32:
    case CKvGroupValueType::Int64:
        return std::to_string(tag.integer());
    case CKvGroupValueType::Real:
        return spelledReal(tag.real());
    case CKvGroupValueType::Bytes: {
        constexpr char kDigits[] = "0123456789ABCDEF";
        std::string hex;
        for (const char c : tag.value.substr(tag.value.empty() ? 0 : 1)) {
            const auto byte = static_cast<unsigned char>(c);
            hex.push_back(kDigits[byte >> 4]);
            hex.push_back(kDigits[byte & 15]);
        }
        return hex;
    }
    case CKvGroupValueType::Text:
    case CKvGroupValueType::Handle:
        break;
    }
    return std::string(tag.value);
}

void appendTagCopy(std::string &bytes, const CKvTagStyle &style, const CKvTag &tag)
{
    appendTag(bytes, style, tag.code, asciiValue(tag));
}

std::string spelledReal(double number)
{
    char text[40];
    const auto [end, failure] = std::to_chars(text, text + sizeof text, number);
    std::string spelled(text, end);
    if (failure == std::errc() && spelled.find_first_of(".ein") == std::string::npos) {
        spelled += ".0";
    }
    return spelled;
}

std::string handleToText(std::uint64_t handle)
{
    char text[17];
    const auto [end, failure] = std::to_chars(text, text + sizeof text, handle, 16);
    std::string spelled(text, failure == std::errc() ? end : text);
    for (char &c : spelled) {
        c = c >= 'a' ? char(c - 'a' + 'A') : c;
    }
    return spelled;
}

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTag.h"

#include <cstring>

/// Reads the tags of some bytes one after the other. Nothing else in the project knows how a tag is
/// spelled, but for tagWriting.h.
class CKvTagReader
{
public:
    enum class Fault { None, CodeIsNoNumber, ValueMissing };

    CKvTagReader(std::string_view bytes, CKvTagForm form, std::size_t begin = 0)
        : m_bytes(bytes)
        , m_position(begin)
    {
        m_tag.form = form;
    }

    /// Reads the next tag.
    /// @return false at the end of the bytes, or at a fault; position() is then where it begins.
    bool next() { return m_tag.form == CKvTagForm::Ascii ? nextAscii() : nextBinary(); }
    const CKvTag &tag() const { return m_tag; }
    std::size_t position() const { return m_position; }
    void seek(std::size_t position) { m_position = position; }
    Fault fault() const { return m_fault; }

private:
    bool nextAscii();
    bool nextBinary();
    bool readOddCode(std::size_t lineEnd);

    std::string_view m_bytes;
    std::size_t m_position;
    CKvTag m_tag;
    Fault m_fault = Fault::None;
};

// Inline because indexing a large drawing does little else.
inline bool CKvTagReader::nextAscii()
{
    const char *const bytes = m_bytes.data();
    const std::size_t size = m_bytes.size();
    if (m_position >= size) {
        return false;
    }
    std::size_t at = m_position;
    while (at < size && (bytes[at] == ' ' || bytes[at] == '\t')) {
        ++at;
    }
    int code = 0;
    const std::size_t firstDigit = at;
    while (at < size && bytes[at] >= '0' && bytes[at] <= '9' && at - firstDigit < 5) {
        code = code * 10 + (bytes[at] - '0');
        ++at;
    }
    const bool hasDigits = at > firstDigit;
    if (at < size && bytes[at] == '\r') {
        ++at;
    }
    if (!hasDigits || at >= size || bytes[at] != '\n') {
        const void *found = std::memchr(bytes + m_position, '\n', size - m_position);
        const std::size_t lineEnd =
            found ? std::size_t(static_cast<const char *>(found) - bytes) : size;
        if (!readOddCode(lineEnd)) {
            return false;
        }
        code = m_tag.code;
        at = lineEnd;
    }
    m_tag.begin = m_position;
    m_tag.code = code;
    m_tag.valueBegin = at + 1;
    if (m_tag.valueBegin > size) {
        m_fault = Fault::ValueMissing;
        return false;
    }
    const void *found = std::memchr(bytes + m_tag.valueBegin, '\n', size - m_tag.valueBegin);
    std::size_t valueEnd = found ? std::size_t(static_cast<const char *>(found) - bytes) : size;
    m_tag.end = found ? valueEnd + 1 : size;
    if (!found && valueEnd == m_tag.valueBegin) {
        m_fault = Fault::ValueMissing;
        return false;
    }
    if (valueEnd > m_tag.valueBegin && bytes[valueEnd - 1] == '\r') {
        --valueEnd;
    }
    m_tag.value = m_bytes.substr(m_tag.valueBegin, valueEnd - m_tag.valueBegin);
    m_position = m_tag.end;
    return true;
}

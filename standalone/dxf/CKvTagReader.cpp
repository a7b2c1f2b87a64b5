// SPDX-License-Identifier: MIT
#include "CKvTagReader.h"

#include "groupValueType.h"

#include <charconv>

bool CKvTagReader::readOddCode(std::size_t lineEnd)
{
    const std::string_view line = trimmed(m_bytes.substr(m_position, lineEnd - m_position));
    if (line.empty() && trimmed(m_bytes.substr(m_position)).empty()) {
        // Blank lines at the end of the bytes.
        m_position = m_bytes.size();
        return false;
    }
    const auto [end, failure] = std::from_chars(line.data(), line.data() + line.size(), m_tag.code);
    if (failure != std::errc() || end != line.data() + line.size()) {
        m_fault = Fault::CodeIsNoNumber;
        return false;
    }
    if (lineEnd >= m_bytes.size()) {
        m_fault = Fault::ValueMissing;
        return false;
    }
    return true;
}

bool CKvTagReader::nextBinary()
{
    const bool hasShortCodes = m_tag.form == CKvTagForm::BinaryShortCodes;
    if (m_position >= m_bytes.size()) {
        return false;
    }
    const auto byteAt = [&](std::size_t at) {
        return unsigned(static_cast<unsigned char>(m_bytes[at]));
    };
    const std::size_t left = m_bytes.size() - m_position;
    // A code of one byte gives 255 where a longer one follows in two.
    const bool isEscaped = hasShortCodes && byteAt(m_position) == 255;
    const std::size_t codeSize = isEscaped ? 3 : hasShortCodes ? 1 : 2;
    if (left < codeSize) {
        m_fault = Fault::ValueMissing;
        return false;
    }
    const std::size_t codeAt = m_position + (isEscaped ? 1 : 0);
    m_tag.code =
        codeSize == 1 ? int(byteAt(codeAt)) : int(byteAt(codeAt) | byteAt(codeAt + 1) << 8);
    m_tag.begin = m_position;
    m_tag.valueBegin = m_position + codeSize;
    std::size_t size = 0;
    std::size_t behind = 0;
    switch (groupValueType(m_tag.code)) {
    case CKvGroupValueType::Bool:
        size = 1;
        break;
    case CKvGroupValueType::Int16:
        size = 2;
        break;
    case CKvGroupValueType::Int32:
        size = 4;
        break;
    case CKvGroupValueType::Int64:
    case CKvGroupValueType::Real:
        size = 8;
        break;
    case CKvGroupValueType::Bytes:
        if (m_tag.valueBegin < m_bytes.size()) {
            size = 1 + byteAt(m_tag.valueBegin);
        } else {
            size = m_bytes.size();
        }
        break;
    case CKvGroupValueType::Text:
    case CKvGroupValueType::Handle: {
        const std::size_t zero = m_bytes.find('\0', m_tag.valueBegin);
        size = zero == std::string_view::npos ? m_bytes.size() : zero - m_tag.valueBegin;
        behind = 1;
        break;
    }
    }
    if (size + behind > m_bytes.size() - m_tag.valueBegin) {
        m_fault = Fault::ValueMissing;
        return false;
    }
    m_tag.value = m_bytes.substr(m_tag.valueBegin, size);
    m_tag.end = m_tag.valueBegin + size + behind;
    m_position = m_tag.end;
    return true;
}

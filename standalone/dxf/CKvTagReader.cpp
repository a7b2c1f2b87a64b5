// SPDX-License-Identifier: MIT
#include "CKvTagReader.h"

#include "groupValueType.h"

#include <charconv>

namespace
{

/// Without the zero behind a text; the size of all bytes for a value that has no end.
std::size_t sizeOfBinaryValue(CKvGroupValueType type, std::string_view bytes, std::size_t begin)
{
    switch (type) {
    case CKvGroupValueType::Bool:
        return 1;
    case CKvGroupValueType::Int16:
        return 2;
    case CKvGroupValueType::Int32:
        return 4;
    case CKvGroupValueType::Int64:
    case CKvGroupValueType::Real:
        return 8;
    case CKvGroupValueType::Bytes:
        return begin < bytes.size() ? 1 + std::size_t(static_cast<unsigned char>(bytes[begin]))
                                    : bytes.size();
    case CKvGroupValueType::Text:
    case CKvGroupValueType::Handle:
        break;
    }
    const std::size_t zero = bytes.find('\0', begin);
    return zero == std::string_view::npos ? bytes.size() : zero - begin;
}

} // namespace

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
    const CKvGroupValueType type = groupValueType(m_tag.code);
    const std::size_t size = sizeOfBinaryValue(type, m_bytes, m_tag.valueBegin);
    const bool isText = type == CKvGroupValueType::Text || type == CKvGroupValueType::Handle;
    const std::size_t behind = isText ? 1 : 0;
    if (size + behind > m_bytes.size() - m_tag.valueBegin) {
        m_fault = Fault::ValueMissing;
        return false;
    }
    m_tag.value = m_bytes.substr(m_tag.valueBegin, size);
    m_tag.end = m_tag.valueBegin + size + behind;
    m_position = m_tag.end;
    return true;
}

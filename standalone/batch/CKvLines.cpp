// SPDX-License-Identifier: MIT
#include "CKvLines.h"

CKvLines::CKvLines(std::string_view bytes)
    : m_bytes(bytes)
{
    std::size_t begin = 0;
    while (begin < bytes.size()) {
        m_begins.push_back(begin);
        const std::size_t end = bytes.find('\n', begin);
        begin = end == std::string_view::npos ? bytes.size() : end + 1;
    }
    m_begins.push_back(bytes.size());
}

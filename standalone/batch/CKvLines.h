// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

/// A text cut into lines, each with its line end. The bytes must outlive it.
class CKvLines
{
public:
    explicit CKvLines(std::string_view bytes);

    std::size_t size() const { return m_begins.size() - 1; }
    std::string_view operator[](std::size_t index) const
    {
        return m_bytes.substr(m_begins[index], m_begins[index + 1] - m_begins[index]);
    }

private:
    std::string_view m_bytes;
    /// Offsets of the lines, then that of the end.
    std::vector<std::size_t> m_begins;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "OdString.h"
#include "hostApi.h"

#include <cstdint>

/// An object's number in its drawing, 64 bits unsigned; 0 is none.
class KV_HOST_API OdDbHandle
{
public:
    OdDbHandle() = default;
    explicit OdDbHandle(std::uint64_t value)
        : m_value(value)
    {
    }
    bool isNull() const { return m_value == 0; }
    std::uint64_t value() const { return m_value; }
    /// Upper-case hexadecimal without leading zeros; empty for none.
    OdString ascii() const;

    friend bool operator==(OdDbHandle a, OdDbHandle b) { return a.m_value == b.m_value; }
    friend bool operator!=(OdDbHandle a, OdDbHandle b) { return a.m_value != b.m_value; }
    friend bool operator<(OdDbHandle a, OdDbHandle b) { return a.m_value < b.m_value; }

private:
    std::uint64_t m_value = 0;
};

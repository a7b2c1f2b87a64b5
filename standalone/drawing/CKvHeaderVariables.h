// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTag.h"

#include <optional>
#include <string_view>
#include <vector>

class CKvObjectSlot;

/// The variables of the HEADER section: a group 9 with the name, then the values.
class CKvHeaderVariables
{
public:
    /// @param slot the section's tags; empty when the file has no header.
    explicit CKvHeaderVariables(CKvObjectSlot &slot)
        : m_slot(slot)
    {
    }

    /// First value of a variable, "$CLAYER" for instance; the last one when the variable occurs
    /// twice.
    std::optional<CKvTag> find(std::string_view name) const;
    /// Replaces the first value. A variable that the header lacks is left out when code is 0,
    /// otherwise it is added with that group code.
    void set(std::string_view name, std::string_view value, int code = 0);

    struct Variable {
        std::string_view name;
        CKvTag value;
    };
    /// All variables with their first value.
    std::vector<Variable> all() const;

private:
    CKvObjectSlot &m_slot;
};

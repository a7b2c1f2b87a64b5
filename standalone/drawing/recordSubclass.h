// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

/// The subclass marks (group 100) that a table record of R13 or newer has, by the word behind group
/// 0; empty for what is no table record.
std::vector<std::string_view> recordSubclasses(std::string_view type);

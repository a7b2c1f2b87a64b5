// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsManager.h"
#include "CKvString.h"

#include <functional>
#include <vector>

/// Whether there is anything to check against. With both lists filled there is; the bare names
/// alone count when a category is checked; the paths alone never count.
/// @param isFound asked for one path after the other when there are paths alone, up to the first
/// that is not found.
bool areStandardsUsable(const std::vector<CKvString> &paths,
                        const std::vector<CKvString> &names,
                        const CKvStdsPluginList &plugins,
                        const std::function<bool(const CKvString &)> &isFound);

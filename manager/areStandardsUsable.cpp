// SPDX-License-Identifier: MIT
#include "areStandardsUsable.h"

#include <algorithm>

bool areStandardsUsable(const std::vector<CKvString> &paths,
                        const std::vector<CKvString> &names,
                        const CKvStdsPluginList &plugins,
                        const std::function<bool(const CKvString &)> &isFound)
{
    if (!paths.empty() && !names.empty()) {
        return true;
    }
    if (!names.empty()) {
        return std::any_of(plugins.begin(), plugins.end(), [](const CKvStdsPluginsPtr &plugin) {
            return plugin->isEnabled();
        });
    }
    for (const CKvString &path : paths) {
        if (!isFound(path)) {
            break;
        }
    }
    // Found or not: a list of paths without names is never usable.
    return false;
}

// SPDX-License-Identifier: MIT
#include "CKvGatheringPass.h"

#include "OdDbObject.h"
#include "violationStamp.h"

#include <algorithm>

namespace
{

/// Whether the plug-in has anything to do with the objects; without objects it always has.
bool pluginCoversObjects(CKvStdsPlugins &plugin, const OdDbObjectIdArray &ids)
{
    if (ids.isEmpty()) {
        return true;
    }
    const std::vector<CKvString> filter = plugin.objectFilter();
    for (const OdDbObjectId &id : ids) {
        const OdDbObjectPtr object = id.openObject(OdDb::kForRead);
        if (!object) {
            continue;
        }
        const CKvString type(object->isA()->dxfName());
        if (std::find(filter.begin(), filter.end(), type) != filter.end()) {
            return true;
        }
    }
    return false;
}

CKvStdsViolation violationEntry(const CKvStdsPluginsPtr &plugin, const CKvStdsErrorPtr &error)
{
    CKvStdsViolation entry;
    entry.plugin = plugin;
    entry.error = error;
    plugin->collectFixes(error, entry.fixes, entry.recommendedFix);
    readViolationStamp(*error);
    error->ignoreState(entry.ignored, entry.ignoredBy);
    return entry;
}

void scan(const CKvStdsPluginsPtr &plugin, std::vector<CKvStdsViolation> &violations)
{
    for (plugin->beginScan(CKvStdsErrorPtr()); !plugin->isDone(); plugin->nextError()) {
        if (const CKvStdsErrorPtr error = plugin->currentError()) {
            violations.push_back(violationEntry(plugin, error));
        }
    }
}

} // namespace

CKvGatheringPass::CKvGatheringPass(CKvPolicy *policy)
    : m_policy(policy)
{
}

CKvGatheringPass::Outcome CKvGatheringPass::run(const std::vector<CKvStdsPluginsPtr> &plugins,
                                                const CKvGatheringRequest &request)
{
    m_violations.clear();
    std::vector<CKvStdsViolation> gathered;
    bool hasAnyPluginRun = false;
    for (const CKvStdsPluginsPtr &plugin : plugins) {
        if (!plugin->isEnabled() || !pluginCoversObjects(*plugin, request.ids)) {
            continue;
        }
        hasAnyPluginRun = true;
        plugin->clear();
        CKvPolicy nobody;
        CKvPolicy &policy = m_policy ? *m_policy : nobody;
        policy.pluginStarts(plugin->pluginId());
        if (!request.ids.isEmpty() && !policy.mayCheckGivenObjects()) {
            return Outcome::Stopped;
        }
        plugin->setObjectsToCheck(request.ids, /*scanAll*/ request.ids.isEmpty());
        plugin->openStandards(
            request.drawing, request.drawingName, request.standardsNames, request.standardsPaths);
        scan(plugin, gathered);
    }
    m_violations = std::move(gathered);
    return hasAnyPluginRun ? Outcome::Finished : Outcome::NothingRan;
}

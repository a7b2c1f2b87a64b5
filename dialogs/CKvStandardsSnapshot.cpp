// SPDX-License-Identifier: MIT
#include "CKvStandardsSnapshot.h"

#include "CKvDatabase.h"
#include "CKvDocument.h"
#include "CKvStdsManager.h"
#include "CKvStdsPlugins.h"
#include "standardsList.h"

#include <algorithm>

CKvStandardsSnapshot CKvStandardsSnapshot::take()
{
    CKvStandardsSnapshot snapshot;
    snapshot.m_files = readStandardsFiles();
    snapshot.m_categories = readCategories();
    return snapshot;
}

bool CKvStandardsSnapshot::isSame(const CKvStandardsSnapshot &other) const
{
    return sameStandardsFiles(other) && sameCategories(other);
}

std::vector<CKvString> CKvStandardsSnapshot::readStandardsFiles()
{
    const CKvDocument *document = ACTIVE_DOCUMENT();
    const CKvDatabase *database = document ? document->GetKvDatabase() : nullptr;
    return database ? readStandardsList(*database, ForeignListEntry::Throw)
                    : std::vector<CKvString>();
}

std::map<CKvStdsPlugins *, bool> CKvStandardsSnapshot::readCategories()
{
    std::map<CKvStdsPlugins *, bool> categories;
    CKvStdsManager *manager = GetKvStandardManager();
    if (!manager) {
        return categories;
    }
    CKvStdsPluginList plugins;
    manager->plugins(plugins);
    for (const CKvStdsPluginsPtr &plugin : plugins) {
        categories[plugin.get()] = plugin->isEnabled();
    }
    return categories;
}

bool CKvStandardsSnapshot::sameStandardsFiles(const CKvStandardsSnapshot &other) const
{
    return std::equal(
        m_files.begin(),
        m_files.end(),
        other.m_files.begin(),
        other.m_files.end(),
        [](const CKvString &a, const CKvString &b) { return a.compareNoCase(b) == 0; });
}

bool CKvStandardsSnapshot::sameCategories(const CKvStandardsSnapshot &other) const
{
    // Plug-ins that were exchanged for others are no change as long as the flags agree.
    return std::equal(m_categories.begin(),
                      m_categories.end(),
                      other.m_categories.begin(),
                      other.m_categories.end(),
                      [](const auto &a, const auto &b) { return a.second == b.second; });
}

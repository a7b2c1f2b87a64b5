// SPDX-License-Identifier: MIT
#include "CKvBatchSession.h"

#include "CKvStdsError.h"
#include "CKvStdsFix.h"

CKvBatchSession::CKvBatchSession(const CKvCheckOptions &options)
    : m_options(options)
{
    const std::vector<const CKvCategory *> chosen = categoriesOf(options.categories);
    m_services.setSearchPaths(options.searchPaths);
    CKvStdsFix::rxInit();
    CKvStdsError::rxInit();
    CKvStdsPlugins::rxInit();
    for (const CKvCategory *category : chosen) {
        category->rxInit();
        CKvStdsPluginsPtr plugin(category->desc()->create());
        // Its smart pointers don't own a plug-in.
        m_checks.push_back({ category, std::unique_ptr<CKvStdsPlugins>(plugin.detach()) });
    }
}

CKvBatchSession::~CKvBatchSession()
{
    for (Check &check : m_checks) {
        check.plugin.reset();
        check.category->rxUninit();
    }
    CKvStdsPlugins::rxUninit();
    CKvStdsError::rxUninit();
    CKvStdsFix::rxUninit();
}

std::vector<CKvStdsPluginsPtr> CKvBatchSession::plugins() const
{
    std::vector<CKvStdsPluginsPtr> plugins;
    for (const Check &check : m_checks) {
        plugins.emplace_back(check.plugin.get());
    }
    return plugins;
}

const CKvCategory &CKvBatchSession::categoryOfPlugin(const CKvStdsPluginsPtr &plugin) const
{
    for (const Check &check : m_checks) {
        if (check.plugin.get() == plugin.get()) {
            return *check.category;
        }
    }
    throw OdError(OdResult::kInvalidInput, "The plug-in is none of this session.");
}

void CKvBatchSession::forgetDrawing()
{
    for (const Check &check : m_checks) {
        check.plugin->clear();
    }
    m_services.hostAppServices()->forgetOutcomes();
}

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchOptions.h"
#include "CKvCategory.h"
#include "CKvStandaloneServices.h"
#include "CKvStdsPlugins.h"

#include <memory>
#include <vector>

/// What the drawings of a run share: the host's services and one plug-in for each category. One at
/// a time in a process.
class CKvBatchSession
{
public:
    /// A category with its plug-in.
    struct Check {
        const CKvCategory *category;
        std::unique_ptr<CKvStdsPlugins> plugin;
    };

    /// @throws CKvUsageError for a category that there is none of.
    explicit CKvBatchSession(const CKvCheckOptions &options);
    ~CKvBatchSession();
    CKvBatchSession(const CKvBatchSession &) = delete;
    CKvBatchSession &operator=(const CKvBatchSession &) = delete;

    const CKvCheckOptions &options() const { return m_options; }
    CKvStandaloneServices &services() { return m_services; }
    const std::vector<Check> &checks() const { return m_checks; }
    /// The plug-ins in the order of the categories.
    std::vector<CKvStdsPluginsPtr> plugins() const;
    /// @param plugin one of plugins().
    const CKvCategory &categoryOfPlugin(const CKvStdsPluginsPtr &plugin) const;
    /// Lets go what belongs to the drawing that was checked last.
    void forgetDrawing();

private:
    CKvCheckOptions m_options;
    CKvStandaloneServices m_services;
    std::vector<Check> m_checks;
};

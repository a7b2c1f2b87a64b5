// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsPluginFrame.h"

#include <functional>
#include <string>
#include <vector>

/// A plug-in that gives its records to the test.
template <class Plugin> class CKvOpenPlugin : public Plugin
{
public:
    using Plugin::records;
};

/// Chooses candidates by walking all records each time: slow, and without an index.
template <class Plugin, class Record> class CKvPlainChoice
{
public:
    /// True for a record that the violation is offered.
    using Rule = std::function<bool(const CKvStdsErrorPtr &, const Record &)>;

    CKvPlainChoice(const CKvOpenPlugin<Plugin> &plugin, Rule forName, Rule forProperties)
        : m_plugin(plugin)
        , m_forName(std::move(forName))
        , m_forProperties(std::move(forProperties))
    {
    }

    /// As violationsText, for one violation.
    std::string line(const CKvStdsErrorPtr &error) const
    {
        const bool isName = error->message() == m_plugin.nameMessage();
        std::string candidates;
        bool isStarred = false;
        for (const CKvStdsRecord *each : m_plugin.records()) {
            const auto &record = static_cast<const Record &>(*each);
            if (!(isName ? m_forName(error, record) : m_forProperties(error, record))) {
                continue;
            }
            candidates += ' ' + record.name.toQString().toStdString() + '@'
                + record.standardsFile.toQString().toStdString();
            if (!isStarred && record.name.equalNoCase(error->objectName())) {
                isStarred = true;
                candidates += '*';
            }
        }
        return error->objectName().toQString().toStdString() + ": "
            + error->message().toQString().toStdString() + candidates + '\n';
    }

private:
    const CKvOpenPlugin<Plugin> &m_plugin;
    Rule m_forName;
    Rule m_forProperties;
};

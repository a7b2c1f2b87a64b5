// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsManager.h"

/// A manager that knows its plug-ins and nothing else. While it lives, GetKvStandardManager gives
/// it.
class CKvFakeManager : public CKvStdsManager
{
public:
    CKvFakeManager() { SetKvStandardManager(this); }
    ~CKvFakeManager() override { SetKvStandardManager(nullptr); }
    CKvFakeManager(const CKvFakeManager &) = delete;
    CKvFakeManager &operator=(const CKvFakeManager &) = delete;

    std::vector<CKvString> standardsPaths() const override { return {}; }
    void setStandardsPaths(std::vector<CKvString> /*paths*/) override { }
    void pluginInfo(CKvStdsPluginsPtr /*plugin*/,
                    CKvString & /*name*/,
                    CKvString & /*version*/,
                    CKvString & /*description*/,
                    CKvString & /*author*/,
                    CKvString & /*link*/) const override
    {
    }
    void addPlugin(CKvStdsPluginsPtr plugin) override { m_plugins.push_back(plugin); }
    void removePlugin(CKvStdsPluginsPtr plugin) override { m_plugins.remove(plugin); }
    bool plugins(CKvStdsPluginList &plugins) const override
    {
        plugins = m_plugins;
        return true;
    }
    CKvString currentPluginId() const override { return CKvString(); }
    void setCurrentPluginId(CKvString /*id*/) override { }
    CKvStdsPluginsPtr findPlugin(CKvString /*id*/) const override { return {}; }
    bool loadDocumentStandards(CKvDocument * /*document*/) override { return false; }
    bool runAudit(OdDbDatabase * /*database*/,
                  OdDbObjectIdArray /*ids*/,
                  bool /*isInteractive*/) override
    {
        return false;
    }
    void reservedOperation1() override { }
    void reservedOperation2() override { }
    void reservedOperation3() override { }
    void beginInterStateCheck() override { }
    void endInterStateCheck() override { }
    bool isInterStateCheck() const override { return false; }

private:
    CKvStdsPluginList m_plugins;
};

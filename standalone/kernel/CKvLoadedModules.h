// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxModule.h"

#include <QString>
#include <QStringList>

#include <vector>

/// The modules that the host has loaded.
class CKvLoadedModules
{
public:
    CKvLoadedModules() = default;
    /// Unloads what is still loaded.
    ~CKvLoadedModules();
    CKvLoadedModules(const CKvLoadedModules &) = delete;
    CKvLoadedModules &operator=(const CKvLoadedModules &) = delete;

    /// Loads a module's file and starts it; does nothing when it is loaded.
    /// @throws OdError when the file is no module, and what its start throws; it is unloaded again
    /// then.
    void load(const QString &path);
    /// Stops a module and unloads its file.
    /// @return false when it is not loaded.
    /// @throws what its stop throws; it stays loaded then.
    bool unload(const QString &path);
    void unloadAll();
    /// Full paths, in the order of loading.
    QStringList paths() const;

private:
    struct Loaded {
        QString path;
        void *file;
        OdRxModule *module;
    };

    std::vector<Loaded> m_modules;
};

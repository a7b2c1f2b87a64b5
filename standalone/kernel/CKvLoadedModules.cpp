// SPDX-License-Identifier: MIT
#include "CKvLoadedModules.h"

#include "CKvForeignMemory.h"
#include "OdError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <exception>
#include <optional>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace
{

void *openFile(const QString &path, QString &reason)
{
#ifdef _WIN32
    void *file = LoadLibraryW(reinterpret_cast<const wchar_t *>(path.utf16()));
    reason = file ? QString() : QStringLiteral("error %1").arg(GetLastError());
#else
    // All symbols at once: a module that misses something of this host fails here, not later.
    // Its memory stays: Qt's own tables keep texts of modules until the program ends.
    void *file = dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    reason = file ? QString() : QString::fromLocal8Bit(dlerror());
#endif
    return file;
}

void closeFile(void *file)
{
#ifdef _WIN32
    FreeLibrary(static_cast<HMODULE>(file));
#else
    dlclose(file);
#endif
}

OdRxCreateModuleObject entryOf(void *file)
{
#ifdef _WIN32
    return reinterpret_cast<OdRxCreateModuleObject>(
        GetProcAddress(static_cast<HMODULE>(file), "odrxCreateModuleObject"));
#else
    return reinterpret_cast<OdRxCreateModuleObject>(dlsym(file, "odrxCreateModuleObject"));
#endif
}

QString fullPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

[[noreturn]] void refuse(const QString &path, const QString &reason)
{
    throw OdError(OdResult::kUnreadableFile,
                  "The module " + path.toStdString() + " can't be loaded: " + reason.toStdString());
}

/// Takes back what a start that failed had begun, as far as it can be taken back.
void undoStart(OdRxModule &module)
{
    try {
        module.uninitApp();
    } catch (const std::exception &) {
        // The failure of the start is the one to tell.
    }
}

/// Starts a module.
/// @return why it did not start, as an error of the host's own: what the module threw goes with its
/// file.
std::optional<OdError> failureOfStart(OdRxModule &module)
{
    const CKvForeignMemory foreign;
    try {
        module.initApp();
        return std::nullopt;
    } catch (const OdError &error) {
        undoStart(module);
        return OdError(OdResult(error.code()), error.what());
    } catch (const std::exception &error) {
        undoStart(module);
        return OdError(OdResult::kUnspecified, error.what());
    }
}

} // namespace

CKvLoadedModules::~CKvLoadedModules()
{
    unloadAll();
}

void CKvLoadedModules::load(const QString &path)
{
    const QString full = fullPath(path);
    if (paths().contains(full)) {
        return;
    }
    QString reason;
    void *file = openFile(full, reason);
    if (!file) {
        refuse(full, reason);
    }
    const OdRxCreateModuleObject create = entryOf(file);
    if (!create) {
        closeFile(file);
        refuse(full, QStringLiteral("it has no odrxCreateModuleObject."));
    }
    OdRxModuleHandle handle = file;
    OdRxModule *module = create(handle);
    if (const std::optional<OdError> failure = failureOfStart(*module)) {
        // A module that did not start is no module.
        module->deleteModule();
        closeFile(file);
        throw OdError(*failure);
    }
    m_modules.push_back({ full, file, module });
}

bool CKvLoadedModules::unload(const QString &path)
{
    const QString full = fullPath(path);
    const auto found = std::find_if(
        m_modules.begin(), m_modules.end(), [&](const Loaded &one) { return one.path == full; });
    if (found == m_modules.end()) {
        return false;
    }
    found->module->uninitApp();
    found->module->deleteModule();
    closeFile(found->file);
    m_modules.erase(found);
    return true;
}

void CKvLoadedModules::unloadAll()
{
    while (!m_modules.empty()) {
        const Loaded last = m_modules.back();
        m_modules.pop_back();
        last.module->uninitApp();
        last.module->deleteModule();
        closeFile(last.file);
    }
}

QStringList CKvLoadedModules::paths() const
{
    QStringList paths;
    for (const Loaded &one : m_modules) {
        paths << one.path;
    }
    return paths;
}

// SPDX-License-Identifier: MIT
#include "CKvLoadedModules.h"

#include "CKvForeignMemory.h"
#include "OdError.h"
#include "odrxAlloc.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <exception>
#include <typeinfo>

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
    void *file = dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_LOCAL);
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

template <class Failure> bool copyAs(const std::exception &failure, std::exception_ptr &copy)
{
    if (typeid(failure) == typeid(Failure)) {
        copy = std::make_exception_ptr(dynamic_cast<const Failure &>(failure));
    }
    return copy != nullptr;
}

/// The same failure as an object of this host's own: what a module threw goes with its file. Of a
/// class that only the module knows, code and text are left.
std::exception_ptr hostsOwn(const std::exception &failure)
{
    std::exception_ptr copy;
    const bool isKnown = copyAs<OdError_NotThatKindOfClass>(failure, copy)
        || copyAs<OdError_InvalidIndex>(failure, copy)
        || copyAs<OdError_InvalidSysvarValue>(failure, copy)
        || copyAs<OdError_NotOpenForWrite>(failure, copy) || copyAs<OdBadAllocation>(failure, copy);
    if (isKnown) {
        return copy;
    }
    const auto *error = dynamic_cast<const OdError *>(&failure);
    return std::make_exception_ptr(
        OdError(error ? OdResult(error->code()) : OdResult::kUnspecified, failure.what()));
}

/// Starts a module.
/// @return why it did not start; null when it did.
std::exception_ptr failureOfStart(OdRxModule &module)
{
    const CKvForeignMemory foreign;
    try {
        module.initApp();
        return nullptr;
    } catch (const std::exception &failure) {
        undoStart(module);
        return hostsOwn(failure);
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
    if (const std::exception_ptr failure = failureOfStart(*module)) {
        // A module that did not start is no module.
        module->deleteModule();
        closeFile(file);
        std::rethrow_exception(failure);
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

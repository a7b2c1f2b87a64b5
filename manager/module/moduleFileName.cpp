// SPDX-License-Identifier: MIT
#include "moduleFileName.h"

#include <QFile>
#include <QFileInfo>

#ifdef _WIN32
#include <windows.h>

#include <array>
#else
#include <link.h>

#include <dlfcn.h>
#endif

namespace
{

/// With the zero at its end.
constexpr int kBufferLength = 260;

} // namespace

OdString moduleFileName(OdRxModuleHandle handle)
{
#ifdef _WIN32
    std::array<wchar_t, kBufferLength> path = {};
    GetModuleFileNameW(HMODULE(handle), path.data(), DWORD(path.size()));
    return OdString(QString::fromWCharArray(path.data()));
#else
    link_map *loaded = nullptr;
    if (!handle || dlinfo(handle, RTLD_DI_LINKMAP, &loaded) != 0) {
        return {};
    }
    const QFileInfo file(QFile::decodeName(loaded->l_name));
    return OdString(file.absoluteFilePath().left(kBufferLength - 1));
#endif
}

// SPDX-License-Identifier: MIT
#include "executableFolder.h"

#include <QFile>
#include <QFileInfo>

#if defined(_WIN32)
#include <windows.h>

#include <vector>
#elif defined(__APPLE__)
#include <mach-o/dyld.h>

#include <vector>
#endif

QString executablePath()
{
#if defined(_WIN32)
    std::vector<wchar_t> path(32768);
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), DWORD(path.size()));
    return QString::fromWCharArray(path.data(), int(length));
#elif defined(__APPLE__)
    std::uint32_t size = 0;
    _NSGetExecutablePath(nullptr, &size);
    std::vector<char> path(size + 1);
    return _NSGetExecutablePath(path.data(), &size) == 0 ? QFile::decodeName(path.data())
                                                         : QString();
#else
    return QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
#endif
}

QString executableFolder()
{
    const QString path = executablePath();
    return path.isEmpty() ? QString() : QFileInfo(path).absolutePath();
}

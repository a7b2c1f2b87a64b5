// SPDX-License-Identifier: MIT
#include "CKvUtilsBase.h"

#include <QString>

#include <array>

#ifdef _WIN32
#include <windows.h>

#include <lmcons.h>
#else
#include <pwd.h>
#include <unistd.h>
#endif

namespace
{

/// As the operating system has it; empty when it has none.
QString accountName()
{
#ifdef _WIN32
    std::array<wchar_t, UNLEN + 1> name = {};
    DWORD length = DWORD(name.size());
    return GetUserNameW(name.data(), &length) ? QString::fromWCharArray(name.data()) : QString();
#else
    // Entries of directory services can be long; what doesn't fit counts as none.
    std::array<char, 16384> texts = {};
    passwd entry = {};
    passwd *found = nullptr;
    const bool isRead = getpwuid_r(getuid(), &entry, texts.data(), texts.size(), &found) == 0;
    return isRead && found ? QString::fromUtf8(found->pw_name) : QString();
#endif
}

} // namespace

CKvString CKvUtilsBase::getUserName()
{
    // The environment comes last: anybody can set it.
    for (const char *variable : { "", "LOGNAME", "USER", "USERNAME" }) {
        const QString name = *variable ? qEnvironmentVariable(variable) : accountName();
        if (!name.isEmpty()) {
            return CKvString(name);
        }
    }
    return CKvString();
}

// SPDX-License-Identifier: MIT
#include "CKvFileIdentity.h"

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <QFile>

#include <ctime>

#include <sys/stat.h>
#endif

namespace
{

#ifdef _WIN32

std::int64_t nanoseconds(const FILETIME &time)
{
    return ((std::int64_t(time.dwHighDateTime) << 32) | time.dwLowDateTime) * 100;
}

std::optional<CKvFileIdentity> identityOf(HANDLE file)
{
    BY_HANDLE_FILE_INFORMATION status = {};
    if (!GetFileInformationByHandle(file, &status)) {
        return std::nullopt;
    }
    // The coarsest step in which file systems there count the time of a change.
    constexpr std::int64_t kStepNs = 2000000000;
    CKvFileIdentity identity;
    identity.device = status.dwVolumeSerialNumber;
    identity.number = (std::uint64_t(status.nFileIndexHigh) << 32) | status.nFileIndexLow;
    identity.size = (std::int64_t(status.nFileSizeHigh) << 32) | status.nFileSizeLow;
    identity.modifiedNs = nanoseconds(status.ftLastWriteTime);
    identity.changedNs = identity.modifiedNs;
    FILETIME now = {};
    GetSystemTimeAsFileTime(&now);
    identity.isSettled = identity.changedNs + kStepNs < nanoseconds(now);
    return identity;
}

#else

std::int64_t nanoseconds(const timespec &time)
{
    return std::int64_t(time.tv_sec) * 1000000000 + time.tv_nsec;
}

CKvFileIdentity identityFrom(const struct stat &status)
{
    CKvFileIdentity identity;
    identity.device = std::uint64_t(status.st_dev);
    identity.number = std::uint64_t(status.st_ino);
    identity.size = std::int64_t(status.st_size);
    identity.modifiedNs = nanoseconds(status.st_mtim);
    identity.changedNs = nanoseconds(status.st_ctim);
    // The clock that file systems take their times from.
    timespec now = {};
    clock_gettime(CLOCK_REALTIME_COARSE, &now);
    identity.isSettled = identity.changedNs < nanoseconds(now);
    return identity;
}

#endif

} // namespace

#ifdef _WIN32

std::optional<CKvFileIdentity> CKvFileIdentity::ofPath(const QString &path)
{
    const std::wstring name = path.toStdWString();
    // Without any access, so that it succeeds whoever has the file open; the flag lets folders in.
    HANDLE const file = CreateFileW(name.c_str(),
                                    0,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                    nullptr,
                                    OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS,
                                    nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    const std::optional<CKvFileIdentity> identity = identityOf(file);
    CloseHandle(file);
    return identity;
}

std::optional<CKvFileIdentity> CKvFileIdentity::ofOpenFile(int descriptor)
{
    if (descriptor < 0) {
        return std::nullopt;
    }
    return identityOf(HANDLE(_get_osfhandle(descriptor)));
}

#else

std::optional<CKvFileIdentity> CKvFileIdentity::ofPath(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0) {
        return std::nullopt;
    }
    return identityFrom(status);
}

std::optional<CKvFileIdentity> CKvFileIdentity::ofOpenFile(int descriptor)
{
    struct stat status = {};
    if (descriptor < 0 || fstat(descriptor, &status) != 0) {
        return std::nullopt;
    }
    return identityFrom(status);
}

#endif

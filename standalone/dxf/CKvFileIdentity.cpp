// SPDX-License-Identifier: MIT
#include "CKvFileIdentity.h"

#include <QFile>

#include <ctime>

#include <sys/stat.h>

namespace
{

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

} // namespace

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

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// Which file this is, and in which state: two that are equal are the same file, unchanged.
struct CKvFileIdentity {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::int64_t size = 0;
    std::int64_t modifiedNs = 0;
    std::int64_t changedNs = 0;
    /// The file was left alone for so long that a further change will show in its times. Times are
    /// counted in steps, and two changes within one can't be told apart.
    bool isSettled = false;

    /// @return nothing when there is no such file.
    static std::optional<CKvFileIdentity> ofPath(const QString &path);
    /// @param descriptor of an open file.
    static std::optional<CKvFileIdentity> ofOpenFile(int descriptor);

    friend bool operator==(const CKvFileIdentity &a, const CKvFileIdentity &b)
    {
        return a.device == b.device && a.number == b.number && a.size == b.size
            && a.modifiedNs == b.modifiedNs && a.changedNs == b.changedNs;
    }
    friend bool operator!=(const CKvFileIdentity &a, const CKvFileIdentity &b) { return !(a == b); }
};

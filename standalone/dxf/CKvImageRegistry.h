// SPDX-License-Identifier: MIT
#pragma once

#include "CKvFileIdentity.h"
#include "CKvFileImage.h"

#include <map>
#include <memory>
#include <mutex>
#include <vector>

/// The images of this process that somebody still holds, so that a standards file that ten drawings
/// name stands in memory once. Safe to use from several threads.
class CKvImageRegistry
{
public:
    static CKvImageRegistry &ofThisProcess();

    /// @return null when there is none of that state of the file. A copy serves where a mapping is
    /// asked for, but not the other way round.
    CKvFileImagePtr
    find(const QString &path, CKvFileImage::Holding holding, const CKvFileIdentity &identity);
    void enter(const CKvFileImagePtr &image);

private:
    std::mutex m_mutex;
    std::map<QString, std::vector<std::weak_ptr<const CKvFileImage>>> m_byPath;
};

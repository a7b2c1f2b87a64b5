// SPDX-License-Identifier: MIT
#include "CKvImageRegistry.h"

#include <algorithm>
#include <iterator>

CKvImageRegistry &CKvImageRegistry::ofThisProcess()
{
    static CKvImageRegistry s_registry;
    return s_registry;
}

CKvFileImagePtr CKvImageRegistry::find(const QString &path,
                                       CKvFileImage::Holding holding,
                                       const CKvFileIdentity &identity)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto known = m_byPath.find(path);
    if (known == m_byPath.end()) {
        return nullptr;
    }
    for (const std::weak_ptr<const CKvFileImage> &entered : known->second) {
        CKvFileImagePtr image = entered.lock();
        if (image && image->identity() == identity
            && (holding == CKvFileImage::Holding::Mapped || !image->isMapped())) {
            return image;
        }
    }
    return nullptr;
}

void CKvImageRegistry::enter(const CKvFileImagePtr &image)
{
    // A file that has just been written could change again without a trace.
    if (!image->identity() || !image->identity()->isSettled) {
        return;
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (auto of = m_byPath.begin(); of != m_byPath.end();) {
        auto &entered = of->second;
        entered.erase(std::remove_if(entered.begin(),
                                     entered.end(),
                                     [](const auto &held) { return held.expired(); }),
                      entered.end());
        of = entered.empty() ? m_byPath.erase(of) : std::next(of);
    }
    m_byPath[image->path()].push_back(image);
}

// SPDX-License-Identifier: MIT
#include "CKvDxfTags.h"

#include <algorithm>

void CKvDxfTags::set(int code, const CKvDxfValue &value)
{
    const auto found = std::find_if(
        m_tags.begin(), m_tags.end(), [code](const CKvDxfTag &tag) { return tag.code == code; });
    if (found == m_tags.end()) {
        append(code, value);
        return;
    }
    *found = { code, value.text, {} };
}

void CKvDxfTags::remove(int code)
{
    m_tags.erase(std::remove_if(m_tags.begin(),
                                m_tags.end(),
                                [code](const CKvDxfTag &tag) { return tag.code == code; }),
                 m_tags.end());
}

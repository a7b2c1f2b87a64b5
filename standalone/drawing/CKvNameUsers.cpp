// SPDX-License-Identifier: MIT
#include "CKvNameUsers.h"

#include "CKvNameIndex.h"
#include "CKvTextCodec.h"

CKvNameUsers::Spelling &CKvNameUsers::spelling(std::string_view encodedName)
{
    const auto known = m_bySpelling.find(encodedName);
    if (known != m_bySpelling.end()) {
        return *known->second;
    }
    Spelling &made = m_spellings.emplace_back();
    made.name = std::string(encodedName);
    m_bySpelling.emplace(made.name, &made);
    return made;
}

void CKvNameUsers::appendUsers(const QString &name,
                               const CKvTextCodec &codec,
                               std::vector<CKvObjectSlot *> &users)
{
    for (; m_folded < m_spellings.size(); ++m_folded) {
        Spelling &entered = m_spellings[m_folded];
        m_byFoldedName[foldedName(codec.decode(entered.name))].push_back(&entered);
    }
    const auto found = m_byFoldedName.constFind(foldedName(name));
    if (found == m_byFoldedName.constEnd()) {
        return;
    }
    for (const Spelling *meant : *found) {
        users.insert(users.end(), meant->users.begin(), meant->users.end());
    }
}

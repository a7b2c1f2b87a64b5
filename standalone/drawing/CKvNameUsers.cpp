// SPDX-License-Identifier: MIT
#include "CKvNameUsers.h"

#include "CKvNameIndex.h"
#include "CKvObjectSlot.h"
#include "CKvTextCodec.h"

#include <algorithm>

namespace
{

bool isBefore(const CKvObjectSlot *a, const CKvObjectSlot *b)
{
    return a->serial < b->serial;
}

} // namespace

void sortWithoutDoubles(std::vector<CKvObjectSlot *> &objects)
{
    if (!std::is_sorted(objects.begin(), objects.end(), isBefore)) {
        std::sort(objects.begin(), objects.end(), isBefore);
    }
    objects.erase(std::unique(objects.begin(), objects.end()), objects.end());
}

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

void CKvNameUsers::takeOutDoubles(Spelling &spelling)
{
    constexpr std::size_t kFewUsers = 16;
    if (spelling.users.size() > 2 * spelling.withoutDoubles + kFewUsers) {
        sortWithoutDoubles(spelling.users);
        spelling.withoutDoubles = spelling.users.size();
    }
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
    for (Spelling *meant : *found) {
        takeOutDoubles(*meant);
        users.insert(users.end(), meant->users.begin(), meant->users.end());
    }
}

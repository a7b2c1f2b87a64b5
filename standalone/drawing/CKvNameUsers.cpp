// SPDX-License-Identifier: MIT
#include "CKvNameUsers.h"

#include "CKvNameIndex.h"
#include "CKvTextCodec.h"

#include <utility>

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

std::vector<CKvNameUsers::Spelling *> CKvNameUsers::spellingsOf(const QString &name,
                                                                const CKvTextCodec &codec)
{
    for (; m_folded < m_spellings.size(); ++m_folded) {
        Spelling &entered = m_spellings[m_folded];
        m_byFoldedName[foldedName(codec.decode(entered.name))].push_back(&entered);
    }
    std::vector<Spelling *> spellings = m_byFoldedName.value(foldedName(name));
    for (Spelling *meant : spellings) {
        if (!std::exchange(meant->isInOrder, true)) {
            sortWithoutDoubles(meant->users);
        }
    }
    return spellings;
}

std::vector<CKvObjectSlot *> CKvNameUsers::usersOf(const QString &name, const CKvTextCodec &codec)
{
    const std::vector<Spelling *> spellings = spellingsOf(name, codec);
    std::vector<CKvObjectSlot *> users;
    for (const Spelling *meant : spellings) {
        users.insert(users.end(), meant->users.begin(), meant->users.end());
    }
    if (spellings.size() > 1) {
        sortWithoutDoubles(users);
    }
    return users;
}

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvObjectSlot.h"

#include <QHash>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class CKvTextCodec;

/// Brings objects into the order of the file, each once.
void sortWithoutDoubles(std::vector<CKvObjectSlot *> &objects);

/// The users of the records of one table, by the name as they spell it. Spellings are told apart by
/// their bytes while they are gathered, and brought together when somebody asks.
class CKvNameUsers
{
public:
    void add(std::string_view encodedName, CKvObjectSlot &user)
    {
        if (!m_last || m_last->name != encodedName) {
            m_last = &spelling(encodedName);
        }
        m_last->add(user);
    }
    /// The users of all spellings of a name, in the order of the file.
    std::vector<CKvObjectSlot *> usersOf(const QString &name, const CKvTextCodec &codec);
    /// @return true when the predicate holds for one of them.
    template <class Predicate>
    bool hasUser(const QString &name, const CKvTextCodec &codec, Predicate predicate)
    {
        for (const Spelling *spelling : spellingsOf(name, codec)) {
            if (std::any_of(spelling->users.begin(), spelling->users.end(), predicate)) {
                return true;
            }
        }
        return false;
    }

private:
    struct Spelling {
        std::string name;
        std::vector<CKvObjectSlot *> users;
        /// They stand in the order of the file, each once.
        bool isInOrder = true;

        void add(CKvObjectSlot &user)
        {
            isInOrder = isInOrder && (users.empty() || users.back()->serial < user.serial);
            users.push_back(&user);
        }
    };

    Spelling &spelling(std::string_view encodedName);
    /// All that mean a name, their users in order: one that goes and comes back is entered each
    /// time, and the list stays as long as the drawing has entities all the same.
    std::vector<Spelling *> spellingsOf(const QString &name, const CKvTextCodec &codec);

    /// Never moved: the keys are views of the names.
    std::deque<Spelling> m_spellings;
    std::unordered_map<std::string_view, Spelling *> m_bySpelling;
    Spelling *m_last = nullptr;
    QHash<QString, std::vector<Spelling *>> m_byFoldedName;
    /// How many spellings are entered there.
    std::size_t m_folded = 0;
};

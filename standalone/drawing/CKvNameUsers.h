// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class CKvObjectSlot;
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
        m_last->users.push_back(&user);
    }
    /// Appends the users of all spellings of a name.
    void appendUsers(const QString &name,
                     const CKvTextCodec &codec,
                     std::vector<CKvObjectSlot *> &users);

private:
    struct Spelling {
        std::string name;
        std::vector<CKvObjectSlot *> users;
        /// How many there were when doubles were last taken out.
        std::size_t withoutDoubles = 0;
    };

    Spelling &spelling(std::string_view encodedName);
    /// An entity that goes and comes back is entered each time; the list stays as long as the
    /// drawing has entities all the same.
    static void takeOutDoubles(Spelling &spelling);

    /// Never moved: the keys are views of the names.
    std::deque<Spelling> m_spellings;
    std::unordered_map<std::string_view, Spelling *> m_bySpelling;
    Spelling *m_last = nullptr;
    QHash<QString, std::vector<Spelling *>> m_byFoldedName;
    /// How many spellings are entered there.
    std::size_t m_folded = 0;
};

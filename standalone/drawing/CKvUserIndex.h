// SPDX-License-Identifier: MIT
#pragma once

#include "CKvNameUsers.h"
#include "CKvTableKind.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class CKvDrawingStore;
struct CKvObjectOutline;

/// Which blocks' edges and entities name a record, by its name or by its handle. Grows with the
/// index of the entities and with every change, so that a question costs what the answer is long
/// and no walk over the drawing. What is answered may name the record no longer; who names it is
/// always in the answer.
class CKvUserIndex
{
public:
    explicit CKvUserIndex(CKvDrawingStore &store);

    /// An object that was read from the file. Layer and line style stand in the outline; the other
    /// names and handles of those that may have some are looked up at the first question.
    void noteRead(CKvObjectSlot &slot, const CKvObjectOutline &outline);
    /// An object that is new or about to change: it is looked through at the next question.
    void noteChange(CKvObjectSlot &slot);
    /// An object that names a layer from now on, and changes in nothing else.
    void noteLayer(CKvObjectSlot &slot, std::string_view encodedName);

    /// Who may name a record of that name, in the order of the file. What names nothing counts for
    /// the record that is meant then: layer 0, the styles Standard; but not line style ByLayer,
    /// which nearly all mean.
    std::vector<CKvObjectSlot *> usersOf(CKvTableKind kind, const QString &name);
    /// @return true when the predicate holds for one of those.
    template <class Predicate>
    bool hasUser(CKvTableKind kind, const QString &name, Predicate predicate)
    {
        lookThroughOpen();
        return users(kind).hasUser(name, codec(), predicate)
            || (kind == CKvTableKind::TextStyle
                && std::any_of(m_tables.begin(), m_tables.end(), predicate));
    }
    /// Who may hold that handle in a group that keeps its object, or in extended data (1005).
    std::vector<CKvObjectSlot *> holdersOf(std::uint64_t handle);

private:
    void lookThrough(CKvObjectSlot &slot);
    void lookThroughOpen();
    void noteHolder(std::uint64_t handle, CKvObjectSlot &slot);
    bool mayNameMore(std::string_view type);
    const CKvTextCodec &codec() const;
    CKvNameUsers &users(CKvTableKind kind) { return m_users[std::size_t(kind)]; }

    CKvDrawingStore &m_store;
    std::array<CKvNameUsers, kTableCount> m_users;
    std::unordered_map<std::uint64_t, std::vector<CKvObjectSlot *>> m_holders;
    /// Tables take the text style of their rows from an object that they name by its handle.
    std::vector<CKvObjectSlot *> m_tables;
    /// To be looked through.
    std::vector<CKvObjectSlot *> m_open;
    std::string m_lastType;
    bool m_lastMayNameMore = false;
};

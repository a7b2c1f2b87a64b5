// SPDX-License-Identifier: MIT
#include "CKvEditWalk.h"

#include <algorithm>

namespace
{

/// So many equal lines in a row are agreement.
constexpr int kAgreement = 24;
constexpr int kMaxEdits = 256;
/// So many equal lines an edit are many.
constexpr int kManyEqualLines = 2;
/// A place outside of one of the texts.
constexpr int kOutside = -1000000;

/// Where a diagonal stands among those that so many edits can reach.
std::size_t slotOf(int edits, int diagonal)
{
    const int slot = diagonal + edits;
    return std::size_t(slot);
}

} // namespace

CKvEditWalk::CKvEditWalk(const CKvLines &before,
                         const CKvLines &after,
                         std::size_t oldAt,
                         std::size_t newAt)
    : m_old(before)
    , m_new(after)
    , m_oldAt(oldAt)
    , m_newAt(newAt)
    , m_reach({ { 0 } })
{
}

CKvEditWalk::Result CKvEditWalk::run()
{
    for (int edits = 1; edits <= kMaxEdits; ++edits) {
        if (extend(edits)) {
            return Result::Agreement;
        }
    }
    const int equalLines = (oldLines() + newLines() - m_edits) / 2;
    return equalLines >= kManyEqualLines * m_edits ? Result::ManyEqualLines : Result::GivenUp;
}

/// @return true when a diagonal came to agreement; otherwise the way is the one that got furthest.
bool CKvEditWalk::extend(int edits)
{
    m_reach.emplace_back(std::size_t(2 * edits + 1), kOutside);
    int furthest = kOutside;
    for (int diagonal = -edits; diagonal <= edits; diagonal += 2) {
        const int begin = placeAfterEdit(edits, diagonal);
        if (begin == kOutside) {
            continue;
        }
        const int place = placeAfterEqualLines(begin, diagonal);
        m_reach.back()[slotOf(edits, diagonal)] = place;
        const bool isAgreement = place - begin >= kAgreement || isEnd(place, diagonal);
        if (isAgreement || 2 * place - diagonal > furthest) {
            furthest = 2 * place - diagonal;
            m_edits = edits;
            m_diagonal = diagonal;
        }
        if (isAgreement) {
            return true;
        }
    }
    return false;
}

std::vector<CKvEditWalk::Step> CKvEditWalk::steps() const
{
    std::vector<Step> steps;
    int diagonal = m_diagonal;
    for (int edits = m_edits; edits > 0; --edits) {
        const bool isInserted = isInsertion(edits, diagonal);
        diagonal += isInserted ? 1 : -1;
        const int place = reach(edits - 1, diagonal);
        steps.push_back({ isInserted, place, place - diagonal });
    }
    std::reverse(steps.begin(), steps.end());
    return steps;
}

int CKvEditWalk::reach(int edits, int diagonal) const
{
    const bool isReached = diagonal >= -edits && diagonal <= edits;
    return isReached ? m_reach[std::size_t(edits)][slotOf(edits, diagonal)] : kOutside;
}

bool CKvEditWalk::isInsertion(int edits, int diagonal) const
{
    const int inserted = reach(edits - 1, diagonal + 1);
    const int erased = reach(edits - 1, diagonal - 1);
    const bool canInsert =
        inserted != kOutside && m_newAt + std::size_t(inserted - diagonal) <= m_new.size();
    const bool canErase = erased != kOutside && m_oldAt + std::size_t(erased + 1) <= m_old.size();
    // On equal terms the old line goes first, as readers of a comparison expect.
    return canInsert && (!canErase || inserted > erased + 1);
}

/// kOutside when the texts have no more lines there.
int CKvEditWalk::placeAfterEdit(int edits, int diagonal) const
{
    const bool isInserted = isInsertion(edits, diagonal);
    const int before = reach(edits - 1, isInserted ? diagonal + 1 : diagonal - 1);
    if (before == kOutside) {
        return kOutside;
    }
    const int place = isInserted ? before : before + 1;
    const bool isInside = m_oldAt + std::size_t(place) <= m_old.size()
        && m_newAt + std::size_t(place - diagonal) <= m_new.size();
    return isInside ? place : kOutside;
}

int CKvEditWalk::placeAfterEqualLines(int place, int diagonal) const
{
    const int begin = place;
    std::size_t oldAt = m_oldAt + std::size_t(place);
    std::size_t newAt = m_newAt + std::size_t(place - diagonal);
    while (place - begin < kAgreement && oldAt < m_old.size() && newAt < m_new.size()
           && m_old[oldAt] == m_new[newAt]) {
        ++oldAt;
        ++newAt;
        ++place;
    }
    return place;
}

bool CKvEditWalk::isEnd(int place, int diagonal) const
{
    return m_oldAt + std::size_t(place) == m_old.size()
        && m_newAt + std::size_t(place - diagonal) == m_new.size();
}

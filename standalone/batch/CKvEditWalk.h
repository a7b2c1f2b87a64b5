// SPDX-License-Identifier: MIT
#pragma once

#include "CKvLines.h"

#include <vector>

/// From a place where two texts differ, the shortest way to one where they agree again: the
/// furthest reaching walk over edits and diagonals (old minus new lines), given up after some
/// edits.
class CKvEditWalk
{
public:
    enum class Result {
        /// Many equal lines in a row, or the end of both texts.
        Agreement,
        /// No agreement, but far more equal lines than edits.
        ManyEqualLines,
        GivenUp
    };
    /// One line taken out of the old text or put into the new one.
    struct Step {
        bool isInsertion;
        /// Lines of both texts before the step, counted from the start of the walk.
        int oldLines;
        int newLines;
    };

    /// @param before, after must outlive the walk.
    CKvEditWalk(const CKvLines &before,
                const CKvLines &after,
                std::size_t oldAt,
                std::size_t newAt);

    Result run();
    /// The way that run found, in order.
    std::vector<Step> steps() const;
    /// How far it leads.
    int oldLines() const { return reach(m_edits, m_diagonal); }
    int newLines() const { return oldLines() - m_diagonal; }

private:
    int reach(int edits, int diagonal) const;
    bool isInsertion(int edits, int diagonal) const;
    int placeAfterEdit(int edits, int diagonal) const;
    int placeAfterEqualLines(int place, int diagonal) const;
    bool isEnd(int place, int diagonal) const;
    bool extend(int edits);

    const CKvLines &m_old;
    const CKvLines &m_new;
    std::size_t m_oldAt;
    std::size_t m_newAt;
    /// For each number of edits, how many old lines each diagonal has passed.
    std::vector<std::vector<int>> m_reach;
    /// Where the way ends.
    int m_edits = 0;
    int m_diagonal = 0;
};

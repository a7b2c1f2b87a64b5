// SPDX-License-Identifier: MIT
#include "lineDifference.h"

#include "CKvEditWalk.h"

#include <algorithm>
#include <functional>
#include <unordered_map>

namespace
{

/// So many lines make a stretch that is looked for elsewhere.
constexpr std::size_t kStretch = 32;
constexpr std::size_t kFirstWindow = 1024;

/// Hashes of all stretches inside [begin, end), each made from the one before.
std::vector<std::size_t> stretchHashes(const CKvLines &lines, std::size_t begin, std::size_t end)
{
    constexpr std::size_t kBase = 1099511628211U;
    std::size_t leaving = 1;
    for (std::size_t i = 0; i < kStretch; ++i) {
        leaving *= kBase;
    }
    const std::hash<std::string_view> hashLine;
    std::vector<std::size_t> hashes;
    std::size_t hash = 0;
    for (std::size_t i = begin; i < std::min(end, lines.size()); ++i) {
        hash = hash * kBase + hashLine(lines[i]);
        if (i >= begin + kStretch) {
            hash -= leaving * hashLine(lines[i - kStretch]);
        }
        if (i + 1 >= begin + kStretch) {
            hashes.push_back(hash);
        }
    }
    return hashes;
}

/// One comparison: walks both texts side by side.
class CKvLineComparison
{
public:
    CKvLineComparison(const CKvLines &before, const CKvLines &after)
        : m_old(before)
        , m_new(after)
    {
    }

    std::vector<CKvLineEdit> run()
    {
        skipEqualLines();
        while (m_oldAt < m_old.size() && m_newAt < m_new.size()) {
            passMismatch();
            skipEqualLines();
        }
        replaceUpTo(m_old.size(), m_new.size());
        return std::move(m_edits);
    }

private:
    void skipEqualLines()
    {
        while (m_oldAt < m_old.size() && m_newAt < m_new.size()
               && m_old[m_oldAt] == m_new[m_newAt]) {
            ++m_oldAt;
            ++m_newAt;
        }
    }

    void passMismatch()
    {
        CKvEditWalk walk(m_old, m_new, m_oldAt, m_newAt);
        if (walk.run() == CKvEditWalk::Result::GivenUp) {
            jumpToCommonStretch();
            return;
        }
        const std::size_t oldBegin = m_oldAt;
        const std::size_t newBegin = m_newAt;
        for (const CKvEditWalk::Step &step : walk.steps()) {
            m_oldAt = oldBegin + std::size_t(step.oldLines);
            m_newAt = newBegin + std::size_t(step.newLines);
            replaceUpTo(m_oldAt + (step.isInsertion ? 0 : 1), m_newAt + (step.isInsertion ? 1 : 0));
        }
        m_oldAt = oldBegin + std::size_t(walk.oldLines());
        m_newAt = newBegin + std::size_t(walk.newLines());
    }

    /// Much was put in, taken out or replaced at one place: both texts go on alike where the next
    /// stretch stands that both have. The window grows, so the search costs what it leads past.
    void jumpToCommonStretch()
    {
        const std::size_t rest = std::max(m_old.size() - m_oldAt, m_new.size() - m_newAt);
        for (std::size_t window = kFirstWindow;; window *= 4) {
            if (findStretch(window)) {
                return;
            }
            if (window >= rest) {
                replaceUpTo(m_old.size(), m_new.size());
                return;
            }
        }
    }

    bool findStretch(std::size_t window)
    {
        std::unordered_map<std::size_t, std::size_t> places;
        const std::vector<std::size_t> ahead = stretchHashes(m_new, m_newAt, m_newAt + window);
        for (std::size_t i = 0; i < ahead.size(); ++i) {
            places.emplace(ahead[i], m_newAt + i);
        }
        const std::vector<std::size_t> behind = stretchHashes(m_old, m_oldAt, m_oldAt + window);
        for (std::size_t i = 0; i < behind.size(); ++i) {
            const auto found = places.find(behind[i]);
            if (found != places.end() && isStretch(m_oldAt + i, found->second)) {
                replaceUpTo(m_oldAt + i, found->second);
                return true;
            }
        }
        return false;
    }

    bool isStretch(std::size_t oldAt, std::size_t newAt) const
    {
        for (std::size_t i = 0; i < kStretch; ++i) {
            if (m_old[oldAt + i] != m_new[newAt + i]) {
                return false;
            }
        }
        return true;
    }

    void replaceUpTo(std::size_t oldEnd, std::size_t newEnd)
    {
        if (oldEnd == m_oldAt && newEnd == m_newAt) {
            return;
        }
        const bool isAdjacent = !m_edits.empty() && m_edits.back().oldEnd == m_oldAt
            && m_edits.back().newEnd == m_newAt;
        if (isAdjacent) {
            m_edits.back().oldEnd = oldEnd;
            m_edits.back().newEnd = newEnd;
        } else {
            m_edits.push_back({ m_oldAt, oldEnd, m_newAt, newEnd });
        }
        m_oldAt = oldEnd;
        m_newAt = newEnd;
    }

    const CKvLines &m_old;
    const CKvLines &m_new;
    std::size_t m_oldAt = 0;
    std::size_t m_newAt = 0;
    std::vector<CKvLineEdit> m_edits;
};

} // namespace

std::vector<CKvLineEdit> lineDifference(const CKvLines &before, const CKvLines &after)
{
    return CKvLineComparison(before, after).run();
}

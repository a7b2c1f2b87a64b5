// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"

#include <map>
#include <vector>

class CKvStdsPlugins;

/// What a list of violations rests on: the drawing's standards files and the categories that are
/// checked. Two of them, taken before and after, tell whether the list still stands.
class CKvStandardsSnapshot
{
public:
    /// Of the active document and the standards manager, as they are now. What there isn't is
    /// empty.
    /// @throws OdError_NotThatKindOfClass for a damaged list of standards files.
    static CKvStandardsSnapshot take();

    /// The same paths in the same order, letter case aside, and the same categories enabled.
    bool isSame(const CKvStandardsSnapshot &other) const;

private:
    static std::vector<CKvString> readStandardsFiles();
    static std::map<CKvStdsPlugins *, bool> readCategories();
    bool sameStandardsFiles(const CKvStandardsSnapshot &other) const;
    bool sameCategories(const CKvStandardsSnapshot &other) const;

    std::vector<CKvString> m_files;
    std::map<CKvStdsPlugins *, bool> m_categories;
};

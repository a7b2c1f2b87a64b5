// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"

#include <vector>

class CKvSystemServices;
class OdDbDatabase;

/// The standards files of one drawing, found. Two lists of the same length: what stands at one
/// place in both is the same file. The preferred file comes first, the others in the order of the
/// drawing.
class CKvStandardsFiles
{
public:
    /// Reads the drawing's list and searches the files. What was held before is dropped first.
    /// @throws OdError_NotThatKindOfClass for a damaged list, and what reading the preferred file
    /// throws.
    void load(OdDbDatabase &database, CKvSystemServices &services);
    void clear();

    /// Where a file of the list is: at its path as it stands, else where the host's search finds
    /// its bare name.
    /// @param listed with forward or backward slashes.
    /// @return with forward slashes, empty when it is nowhere.
    static CKvString
    find(const CKvString &listed, OdDbDatabase &database, CKvSystemServices &services);

    const std::vector<CKvString> &paths() const { return m_paths; }
    /// The bare file names.
    const std::vector<CKvString> &names() const { return m_names; }
    /// Listed files that are not to be had, as the drawing stores them: those found nowhere, in the
    /// order of the list, then a preferred one that isn't where the setting says.
    const std::vector<CKvString> &missing() const { return m_missing; }

private:
    void addListed(const CKvString &stored, OdDbDatabase &database, CKvSystemServices &services);
    void putPreferredFirst(CKvSystemServices &services);
    void add(const QString &path);

    std::vector<CKvString> m_paths;
    std::vector<CKvString> m_names;
    std::vector<CKvString> m_missing;
    /// All listed paths with forward slashes, found or not.
    std::vector<CKvString> m_listed;
    CKvString m_preferred;
    /// The preferred file as the drawing lists it.
    CKvString m_storedPreferred;
};

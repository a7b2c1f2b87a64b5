// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStandardsSettings.h"

/// Settings that the program sets itself, from its command line for instance.
class CKvStandaloneSettings : public CKvStandardsSettings
{
public:
    CKvString preferredStandardsFile() const override { return m_preferredStandardsFile; }
    bool fixAutomatically() const override { return m_fixAutomatically; }
    bool showIgnored() const override { return m_showIgnored; }

    /// @param path empty for none.
    void setPreferredStandardsFile(const CKvString &path) { m_preferredStandardsFile = path; }
    void setFixAutomatically(bool isAutomatic) { m_fixAutomatically = isAutomatic; }
    void setShowIgnored(bool isShown) { m_showIgnored = isShown; }

private:
    CKvString m_preferredStandardsFile;
    bool m_fixAutomatically = false;
    bool m_showIgnored = false;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsError.h"
#include "CKvStdsPlugins.h"
#include "OdStaticRxObject.h"

#include <QStringList>

#include <string>
#include <vector>

/// A plug-in that finds what the test tells it and writes down each call.
class CKvRecordingPlugin : public OdStaticRxObject<CKvStdsPlugins>
{
public:
    struct Finding {
        OdDbObjectId object;
        int candidates;
        int recommended;
    };

    /// @param calls receives "name.call arguments"; must outlive the plug-in.
    CKvRecordingPlugin(const char *name, std::vector<std::string> &calls);

    /// The scan stands on this next; a null violation where the id is null.
    void finds(OdDbObjectId object, int candidates, int recommended);
    void disable() { m_isEnabled = false; }
    /// "LAYER" unless it is told otherwise.
    void handles(const QStringList &types) { m_types = types; }
    /// The call of this name throws.
    void failsIn(const char *call) { m_failure = call; }

    void setManager(CKvStdsManager *manager) override;
    void setObjectsToCheck(OdDbObjectIdArray ids, bool scanAll) override;
    void openStandards(OdDbDatabasePtr drawing,
                       CKvString drawingName,
                       std::vector<CKvString> standardsNames,
                       std::vector<CKvString> standardsPaths) override;
    std::vector<CKvString> objectFilter() override;
    CKvString authorName() const override { return CKvString(); }
    CKvString description() const override { return CKvString(); }
    CKvString linkText() const override { return CKvString(); }
    CKvString pluginName() const override { return CKvString(); }
    CKvString versionText() const override { return CKvString(); }
    CKvString pluginId() const override
    {
        return CKvString(QString::fromStdString(m_name + "-id"));
    }
    bool isEnabled() const override { return m_isEnabled; }
    void setEnabled(bool isEnabled) override { m_isEnabled = isEnabled; }
    void beginScan(CKvStdsErrorPtr start) override;
    void nextError() override;
    bool isDone() const override { return m_at >= m_findings.size(); }
    void clear() override;
    bool acceptValue(CKvString value) override;
    void applyFix(CKvStdsErrorPtr error, CKvStdsFixPtr fix, CKvString &message) override;
    void collectFixes(CKvStdsErrorPtr error,
                      OdArray<CKvStdsFixPtr> &fixes,
                      std::int32_t &recommended) override;
    CKvStdsErrorPtr currentError() const override;
    void propertyDifferences(CKvStdsErrorPtr error,
                             CKvStdsFixPtr fix,
                             std::vector<CKvString> &names,
                             OdArray<OdResBufPtr> &objectValues,
                             OdArray<OdResBufPtr> &fixValues,
                             std::vector<CKvString> &units) override;
    CKvStdsFixPtr recommendedFix(CKvStdsErrorPtr error) override;
    void releaseError(CKvStdsErrorPtr &error) override;

protected:
    /// Writes the call down, and throws when it is the one that shall fail.
    void note(const std::string &call) const;

private:
    std::string m_name;
    std::vector<std::string> &m_calls;
    QStringList m_types = { QStringLiteral("LAYER") };
    bool m_isEnabled = true;
    std::string m_failure;
    std::vector<Finding> m_findings;
    std::size_t m_at = 0;
};

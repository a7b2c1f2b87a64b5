// SPDX-License-Identifier: MIT
#include "CKvStdsPluginFrame.h"

#include <QScopeGuard>

#include <algorithm>

bool CKvStdsPluginFrame::isOffered(const CKvStdsRecord & /*standard*/,
                                   CKvStdsViolationKind /*kind*/)
{
    return true;
}

bool CKvStdsPluginFrame::isTiedToNamesakes(const CKvString & /*name*/) const
{
    return false;
}

bool CKvStdsPluginFrame::isNamesake(const CKvString &tiedName, const CKvStdsRecord &standard) const
{
    return standard.name.compareNoCase(tiedName) == 0;
}

bool CKvStdsPluginFrame::isTwin(const CKvStdsRecord & /*violation*/,
                                const CKvStdsRecord & /*standard*/) const
{
    return false;
}

QString CKvStdsPluginFrame::twinKey(const CKvStdsRecord & /*record*/) const
{
    return QString();
}

QString CKvStdsPluginFrame::sharingKey(const CKvStdsRecord & /*violation*/) const
{
    return QString();
}

CKvStdsPropertyList CKvStdsPluginFrame::recommendedProperties(const CKvStdsRecord &record)
{
    return properties(record);
}

void CKvStdsPluginFrame::collectFixes(CKvStdsErrorPtr error,
                                      OdArray<CKvStdsFixPtr> &fixes,
                                      std::int32_t &recommended)
{
    if (!error) {
        return;
    }
    recommended = -1;
    m_recommended = -1;
    m_previewCount = 0;
    const CKvStdsViolationKind kind = violationKind(error);
    if (kind == CKvStdsViolationKind::None || m_records.isEmpty()) {
        return;
    }

    const CKvStdsCandidateList candidates = candidatesFor(error, kind);
    const auto forgetCandidates = qScopeGuard([this] { m_candidates.clear(); });
    m_candidates = candidates.records;
    if (fixes.isEmpty()) {
        fixes = candidates.fixes;
    } else {
        for (const CKvStdsFixPtr &fix : candidates.fixes) {
            fixes.append(fix);
        }
    }
    recommendedFix(error);
    recommended = m_recommended;
}

CKvStdsFixPtr CKvStdsPluginFrame::recommendedFix(CKvStdsErrorPtr error)
{
    CKvStdsFixPtr fix = CKvStdsFix::createObject();
    if (m_candidates.isEmpty()) {
        return fix;
    }
    const OdDbSymbolTableRecordPtr object(error->objectId().openObject(OdDb::kForRead));
    m_recommended = object ? candidateOfName(CKvString(object->getName())) : -1;
    if (m_recommended < 0) {
        return fix;
    }
    const CKvStdsRecord &record = *m_candidates.at(unsigned(m_recommended));
    fix->setName(record.name);
    fix->setStandardsFile(record.standardsFile);
    fix->setObjectName(record.name);
    addProperties(fix, recommendedProperties(record));
    return fix;
}

int CKvStdsPluginFrame::candidateOfName(const CKvString &name) const
{
    const auto isBefore = [](const CKvStdsRecord *candidate, int position) {
        return candidate->position < position;
    };
    for (const CKvStdsRecord *namesake : m_index.namesakesOf(name)) {
        const auto found = std::lower_bound(
            m_candidates.begin(), m_candidates.end(), namesake->position, isBefore);
        if (found != m_candidates.end() && *found == namesake) {
            return int(found - m_candidates.begin());
        }
    }
    return -1;
}

CKvStdsCandidateList CKvStdsPluginFrame::candidatesFor(const CKvStdsErrorPtr &error,
                                                       CKvStdsViolationKind kind)
{
    const std::unique_ptr<CKvStdsRecord> violation = readViolation(error);
    if (kind == CKvStdsViolationKind::Name) {
        return candidatesForName(*violation);
    }
    return isTiedToNamesakes(violation->name) ? tiedCandidates(*violation)
                                              : candidatesForProperties(*violation);
}

CKvStdsCandidateList CKvStdsPluginFrame::candidatesForName(const CKvStdsRecord &violation)
{
    std::vector<CKvStdsRecord *> leftOut;
    for (CKvStdsRecord *namesake : m_index.namesakesOf(violation.name)) {
        if (namesake->name.compare(violation.name) == 0) {
            leftOut.push_back(namesake);
        }
    }
    return withoutRecords(allOffered(CKvStdsViolationKind::Name), leftOut);
}

CKvStdsCandidateList CKvStdsPluginFrame::candidatesForProperties(const CKvStdsRecord &violation)
{
    const QString key = sharingKey(violation);
    if (!key.isNull()) {
        const auto known = m_sharedCandidates.constFind(key);
        if (known != m_sharedCandidates.constEnd()) {
            return *known;
        }
    }
    std::vector<CKvStdsRecord *> leftOut;
    for (CKvStdsRecord *twin : m_index.twinsOf(twinKey(violation))) {
        if (isTwin(violation, *twin)) {
            leftOut.push_back(twin);
        }
    }
    CKvStdsCandidateList candidates =
        withoutRecords(allOffered(CKvStdsViolationKind::Properties), leftOut);
    if (!key.isNull()) {
        m_sharedCandidates.insert(key, candidates);
    }
    return candidates;
}

CKvStdsCandidateList CKvStdsPluginFrame::tiedCandidates(const CKvStdsRecord &violation)
{
    CKvStdsCandidateList candidates;
    for (CKvStdsRecord *namesake : m_index.namesakesOf(violation.name)) {
        if (isNamesake(violation.name, *namesake)
            && isOffered(*namesake, CKvStdsViolationKind::Properties)
            && !isTwin(violation, *namesake)) {
            candidates.append(namesake);
        }
    }
    return candidates;
}

const CKvStdsCandidateList &CKvStdsPluginFrame::allOffered(CKvStdsViolationKind kind)
{
    std::optional<CKvStdsCandidateList> &offered =
        kind == CKvStdsViolationKind::Name ? m_offeredForName : m_offeredForProperties;
    if (!offered) {
        CKvStdsCandidateList candidates;
        for (CKvStdsRecord *record : m_records) {
            if (isOffered(*record, kind)) {
                candidates.append(record);
            }
        }
        offered = std::move(candidates);
    }
    return *offered;
}

CKvStdsCandidateList CKvStdsPluginFrame::withoutRecords(const CKvStdsCandidateList &list,
                                                        const std::vector<CKvStdsRecord *> &leftOut)
{
    if (leftOut.empty()) {
        return list;
    }
    CKvStdsCandidateList rest;
    auto next = leftOut.begin();
    for (CKvStdsRecord *record : list.records) {
        // Both lists are in the order of positions; what is left out may be missing from the list.
        while (next != leftOut.end() && (*next)->position < record->position) {
            ++next;
        }
        if (next == leftOut.end() || *next != record) {
            rest.append(record);
        }
    }
    return rest;
}

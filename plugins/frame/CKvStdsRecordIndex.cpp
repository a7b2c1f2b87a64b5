// SPDX-License-Identifier: MIT
#include "CKvStdsRecordIndex.h"

#include "foldCase.h"

void CKvStdsRecordIndex::add(CKvStdsRecord *record, const QString &twinKey)
{
    m_byFoldedName[foldCase(record->name.toQString())].push_back(record);
    if (!twinKey.isNull()) {
        m_byTwinKey[twinKey].push_back(record);
    }
}

void CKvStdsRecordIndex::clear()
{
    m_byFoldedName.clear();
    m_byTwinKey.clear();
}

CKvStdsRecord *CKvStdsRecordIndex::firstOf(const CKvString &name) const
{
    const std::vector<CKvStdsRecord *> &namesakes = namesakesOf(name);
    return namesakes.empty() ? nullptr : namesakes.front();
}

const std::vector<CKvStdsRecord *> &CKvStdsRecordIndex::namesakesOf(const CKvString &name) const
{
    return groupOf(m_byFoldedName, foldCase(name.toQString()));
}

const std::vector<CKvStdsRecord *> &CKvStdsRecordIndex::twinsOf(const QString &twinKey) const
{
    // The hash holds a null key equal to an empty one, but a null key has no twins.
    static const std::vector<CKvStdsRecord *> s_none;
    return twinKey.isNull() ? s_none : groupOf(m_byTwinKey, twinKey);
}

const std::vector<CKvStdsRecord *> &CKvStdsRecordIndex::groupOf(const Groups &groups,
                                                                const QString &key)
{
    static const std::vector<CKvStdsRecord *> s_none;
    const auto found = groups.constFind(key);
    return found == groups.constEnd() ? s_none : *found;
}

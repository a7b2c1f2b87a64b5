// SPDX-License-Identifier: MIT
#include "CKvTable.h"

#include "CKvDrawingStore.h"
#include "recordNames.h"

CKvTable::CKvTable(CKvDrawingStore &store, CKvTableKind kind)
    : m_store(store)
    , m_kind(kind)
    , m_head(&store.makeTableHead(kind))
{
}

void CKvTable::add(CKvObjectSlot &record)
{
    m_records.push_back(&record);
    if (!m_index.add(recordName(record), &record)) {
        m_hasDoubleNames = true;
    }
    forgetEncodedNames();
}

CKvObjectSlot *CKvTable::find(const QString &name)
{
    // Shape files have no name, and the group that names nothing means none of them.
    return name.isEmpty() ? nullptr : m_index.find(name);
}

CKvObjectSlot *CKvTable::findEncoded(std::string_view encodedName)
{
    if (m_hasLastFound && m_lastEncoded == encodedName) {
        return m_lastFound;
    }
    std::string key(encodedName);
    const auto known = m_encodedNames.find(key);
    if (known != m_encodedNames.end()) {
        m_lastFound = known->second;
    } else {
        m_lastFound = find(m_store.format().codec.decode(encodedName));
        m_encodedNames.emplace(std::move(key), m_lastFound);
    }
    m_lastEncoded = encodedName;
    m_hasLastFound = true;
    return m_lastFound;
}

CKvObjectSlot &CKvTable::findOrStandIn(std::string_view encodedName)
{
    if (CKvObjectSlot *found = findEncoded(encodedName)) {
        return *found;
    }
    CKvObjectSlot *&standIn = m_standIns[std::string(encodedName)];
    if (!standIn) {
        standIn = makeStandIn(encodedName);
    }
    return *standIn;
}

const std::string &CKvTable::encodedNameOf(const CKvObjectSlot &record)
{
    if (m_lastNamed != &record) {
        m_lastName = encodedRecordName(record);
        m_lastNamed = &record;
    }
    return m_lastName;
}

void CKvTable::forgetEncodedNames()
{
    m_encodedNames.clear();
    m_hasLastFound = false;
    m_lastNamed = nullptr;
}

CKvObjectSlot *CKvTable::makeStandIn(std::string_view encodedName)
{
    const std::string_view type = kTableNames[std::size_t(m_kind)];
    CKvObjectSlot &slot = m_store.makeSlot(CKvObjectSlot::Role::StandIn, type);
    slot.owner = m_head;
    std::string &bytes = slot.ownBytes();
    appendTag(bytes, m_store.format().style, 0, type);
    appendTag(bytes, m_store.format().style, 2, encodedName);
    return &slot;
}

void CKvTable::nameChanged(CKvObjectSlot &record, const QString &oldName)
{
    forgetEncodedNames();
    m_index.remove(oldName, &record);
    if (!m_index.add(recordName(record), &record)) {
        m_hasDoubleNames = true;
    }
    if (m_hasDoubleNames) {
        rebuild();
    }
}

void CKvTable::erasedChanged(CKvObjectSlot &record)
{
    forgetEncodedNames();
    if (!record.isErased || m_hasDoubleNames) {
        rebuild();
    } else {
        m_index.remove(recordName(record), &record);
    }
}

void CKvTable::rebuild()
{
    m_index.clear();
    for (CKvObjectSlot *record : m_records) {
        if (!record->isErased) {
            m_index.add(recordName(*record), record);
        }
    }
}

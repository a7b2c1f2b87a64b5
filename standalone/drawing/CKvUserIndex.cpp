// SPDX-License-Identifier: MIT
#include "CKvUserIndex.h"

#include "CKvDrawingStore.h"
#include "CKvSectionReader.h"
#include "CKvTagReader.h"
#include "nameUses.h"

namespace
{

constexpr std::string_view kTableEntity = "ACAD_TABLE";

/// What an entity means that names no record.
struct CKvDefaultName {
    CKvTableKind kind;
    std::string_view name;
};

constexpr CKvDefaultName kDefaultNames[] = {
    { CKvTableKind::Layer, "0" },
    { CKvTableKind::TextStyle, "Standard" },
    { CKvTableKind::DimStyle, "Standard" },
};

} // namespace

CKvUserIndex::CKvUserIndex(CKvDrawingStore &store)
    : m_store(store)
{
}

bool CKvUserIndex::mayNameMore(std::string_view type)
{
    // Entities of one kind stand together.
    if (type != m_lastType) {
        m_lastType = type;
        m_lastMayNameMore = hasOwnNameUses(type);
    }
    return m_lastMayNameMore;
}

const CKvTextCodec &CKvUserIndex::codec() const
{
    return m_store.format().codec;
}

void CKvUserIndex::noteRead(CKvObjectSlot &slot, const CKvObjectOutline &outline)
{
    if (outline.hasPointers || mayNameMore(outline.type)) {
        m_open.push_back(&slot);
        return;
    }
    users(CKvTableKind::Layer).add(outline.layer.value_or("0"), slot);
    if (outline.lineStyle) {
        users(CKvTableKind::Linetype).add(*outline.lineStyle, slot);
    }
}

void CKvUserIndex::noteChange(CKvObjectSlot &slot)
{
    if (m_open.empty() || m_open.back() != &slot) {
        m_open.push_back(&slot);
    }
}

void CKvUserIndex::noteLayer(CKvObjectSlot &slot, std::string_view encodedName)
{
    users(CKvTableKind::Layer).add(encodedName, slot);
}

void CKvUserIndex::lookThrough(CKvObjectSlot &slot)
{
    std::array<bool, kTableCount> isNamed = {};
    forEachNameUse(slot, CKvUses::All, [&](CKvTableKind kind, const CKvTag &tag) {
        // A layer that extended data names is not the one that the entity stands on.
        isNamed[std::size_t(kind)] = isNamed[std::size_t(kind)] || tag.code != 1003;
        users(kind).add(tag.value, slot);
    });
    CKvTagReader reader(slot.bytes(), slot.form());
    std::string_view type;
    while (reader.next()) {
        const CKvTag &tag = reader.tag();
        if (tag.code == 0) {
            type = tag.word();
        } else if (isKeepingPointer(tag.code) || tag.code == 1005) {
            noteHolder(tag.handle(), slot);
        }
    }
    for (const CKvDefaultName &meant : kDefaultNames) {
        const bool isMeant = meant.kind == CKvTableKind::Layer || namesRecordOf(type, meant.kind);
        if (!isNamed[std::size_t(meant.kind)] && isMeant) {
            users(meant.kind).add(meant.name, slot);
        }
    }
    if (type == kTableEntity) {
        m_tables.push_back(&slot);
    }
}

void CKvUserIndex::noteHolder(std::uint64_t handle, CKvObjectSlot &slot)
{
    std::vector<CKvObjectSlot *> &holders = m_holders[handle];
    if (handle != 0 && (holders.empty() || holders.back() != &slot)) {
        holders.push_back(&slot);
    }
}

void CKvUserIndex::lookThroughOpen()
{
    // Looking through changes nothing, so nothing is added meanwhile.
    for (CKvObjectSlot *slot : m_open) {
        lookThrough(*slot);
    }
    m_open.clear();
}

std::vector<CKvObjectSlot *> CKvUserIndex::usersOf(CKvTableKind kind, const QString &name)
{
    lookThroughOpen();
    std::vector<CKvObjectSlot *> found = users(kind).usersOf(name, codec());
    if (kind == CKvTableKind::TextStyle && !m_tables.empty()) {
        found.insert(found.end(), m_tables.begin(), m_tables.end());
        sortWithoutDoubles(found);
    }
    return found;
}

std::vector<CKvObjectSlot *> CKvUserIndex::holdersOf(std::uint64_t handle)
{
    lookThroughOpen();
    const auto known = m_holders.find(handle);
    std::vector<CKvObjectSlot *> found;
    if (known != m_holders.end()) {
        found = known->second;
    }
    sortWithoutDoubles(found);
    return found;
}

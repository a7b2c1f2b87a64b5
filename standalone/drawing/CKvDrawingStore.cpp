// SPDX-License-Identifier: MIT
#include "CKvDrawingStore.h"

#include "CKvChangeJournal.h"
#include "CKvEntityIndex.h"
#include "CKvSectionReader.h"
#include "objectClasses.h"

#include <algorithm>

CKvDrawingStore::CKvDrawingStore(CKvFileImagePtr image, const CKvDrawingFormat &format)
    : ownFile(image->identity())
    , m_image(std::move(image))
    , m_format(format)
    , m_header(&makeSlot(CKvObjectSlot::Role::Header, "HEADER"))
{
    for (std::size_t i = 0; i < kTableCount; ++i) {
        m_tables[i] = std::make_unique<CKvTable>(*this, CKvTableKind(i));
    }
}

CKvDrawingStore::~CKvDrawingStore() = default;

CKvObjectSlot &CKvDrawingStore::makeSlot(CKvObjectSlot::Role role, std::string_view type)
{
    CKvObjectSlot &slot = m_slots.add();
    slot.store = this;
    slot.role = role;
    slot.serial = std::uint32_t(m_slots.size());
    // Objects of one kind stand together, so the class of the one before is mostly the one wanted.
    if (type != m_lastType || role != m_lastRole) {
        m_lastClass = objectClass(type, role);
        m_lastType = type;
        m_lastRole = role;
    }
    slot.rxClass = m_lastClass;
    return slot;
}

CKvObjectSlot &CKvDrawingStore::makeTableHead(CKvTableKind kind)
{
    CKvObjectSlot &slot = makeSlot(CKvObjectSlot::Role::TableHead, "TABLE");
    slot.rxClass = tableClass(kind);
    return slot;
}

CKvEntityIndex &CKvDrawingStore::entities()
{
    if (!m_entities) {
        auto index = std::make_unique<CKvEntityIndex>(*this);
        CKvSectionReader reader(
            m_image, m_format.style.form, m_unreadBegin, m_unreadEnd, &m_warnings);
        while (m_unreadBegin < m_unreadEnd && reader.nextSection()) {
            index->readSection(reader);
        }
        m_entities = std::move(index);
    }
    return *m_entities;
}

CKvObjectSlot *CKvDrawingStore::findRecordByHandle(std::uint64_t handle) const
{
    const auto found = m_byHandle.find(handle);
    return found == m_byHandle.end() ? nullptr : found->second;
}

CKvObjectSlot *CKvDrawingStore::findByHandle(std::uint64_t handle)
{
    if (handle == 0) {
        return nullptr;
    }
    CKvObjectSlot *found = findRecordByHandle(handle);
    return found ? found : entities().findByHandle(handle);
}

bool CKvDrawingStore::isRecordOf(const CKvObjectSlot &slot, CKvTableKind kind) const
{
    return slot.role == CKvObjectSlot::Role::Record
        && slot.owner == &m_tables[std::size_t(kind)]->head();
}

CKvObjectSlot &CKvDrawingStore::blockOrNew(const QString &name)
{
    CKvTable &blocks = table(CKvTableKind::Block);
    if (CKvObjectSlot *found = blocks.find(name)) {
        return *found;
    }
    CKvObjectSlot &slot = makeSlot(CKvObjectSlot::Role::Record, "BLOCK_RECORD");
    slot.owner = &blocks.head();
    slot.own = std::make_unique<std::string>();
    appendTag(*slot.own, m_format.style, 0, "BLOCK_RECORD");
    appendTag(*slot.own, m_format.style, 2, m_format.codec.encode(name));
    blocks.add(slot);
    return slot;
}

std::uint64_t CKvDrawingStore::newHandle()
{
    // A seed that is too small would give one handle twice, so the entities are asked too.
    std::uint64_t handle = std::max(m_largestHandle, entities().largestHandle()) + 1;
    const std::optional<CKvTag> seed = header().find("$HANDSEED");
    if (seed) {
        handle = std::max(handle, seed->handle());
    }
    m_largestHandle = handle;
    return handle;
}

void CKvDrawingStore::writeHandleSeed()
{
    const std::optional<CKvTag> seed = header().find("$HANDSEED");
    if (seed && seed->handle() <= m_largestHandle) {
        header().set("$HANDSEED", handleToText(m_largestHandle + 1));
    }
}

void CKvDrawingStore::registerHandle(CKvObjectSlot &slot)
{
    if (slot.handle == 0) {
        return;
    }
    m_largestHandle = std::max(m_largestHandle, slot.handle);
    m_byHandle.emplace(slot.handle, &slot);
}

void CKvDrawingStore::touch(CKvObjectSlot &slot)
{
    if (!slot.isTouched) {
        slot.isTouched = true;
        m_touched.push_back(&slot);
    }
}

void CKvDrawingStore::noteChange(CKvObjectSlot &slot)
{
    touch(slot);
    using Role = CKvObjectSlot::Role;
    if (slot.role == Role::Record) {
        for (const std::unique_ptr<CKvTable> &table : m_tables) {
            table->forgetLastNames();
        }
    } else if (m_entities
               && (slot.role == Role::Entity || slot.role == Role::SubEntity
                   || slot.role == Role::BlockEdge)) {
        m_entities->users().noteChange(slot);
    }
}

bool CKvDrawingStore::moveToLayer(CKvObjectSlot &entity, std::string_view encodedName)
{
    constexpr std::size_t kMostNames = 0xffff;
    if (m_movedLayers.size() < 2 || m_movedLayers.back() != encodedName) {
        if (m_movedLayers.size() > kMostNames) {
            return false;
        }
        m_movedLayers.emplace_back(encodedName);
    }
    if (journal) {
        journal->willChange(entity);
    }
    entity.movedTo = std::uint16_t(m_movedLayers.size() - 1);
    touch(entity);
    m_entities->users().noteLayer(entity, encodedName);
    return true;
}

void CKvDrawingStore::addObject(CKvObjectSlot &slot)
{
    m_objects.push_back(&slot);
    registerHandle(slot);
}

CKvObjectSlot *CKvDrawingStore::slotBehind(const CKvObjectSlot &slot)
{
    return slot.serial < m_slots.size() ? &m_slots[slot.serial] : nullptr;
}

CKvObjectSlot &CKvDrawingStore::requireRootDictionary()
{
    if (!m_rootDictionary) {
        CKvObjectSlot &root = makeSlot(CKvObjectSlot::Role::Object, "DICTIONARY");
        root.handle = newHandle();
        root.own = std::make_unique<std::string>();
        appendTag(*root.own, m_format.style, 0, "DICTIONARY");
        appendTag(*root.own, m_format.style, 5, handleToText(root.handle));
        appendTag(*root.own, m_format.style, 330, "0");
        appendTag(*root.own, m_format.style, 100, "AcDbDictionary");
        appendTag(*root.own, m_format.style, 281, "1");
        addObject(root);
        touch(root);
        m_rootDictionary = &root;
    }
    return *m_rootDictionary;
}

// SPDX-License-Identifier: MIT
#include "CKvEntityIndex.h"

#include "CKvDrawingStore.h"
#include "CKvSectionReader.h"
#include "objectTags.h"
#include "recordNames.h"

#include <algorithm>

namespace
{

/// So many show how long the others will be.
constexpr std::size_t kFirstEntities = 1024;

bool isPartOfEntityBefore(std::string_view type)
{
    return type == "VERTEX" || type == "SEQEND";
}

void noteLayerPlace(CKvObjectSlot &slot, const CKvObjectOutline &outline)
{
    if (!outline.layer) {
        return;
    }
    const char *const begin = slot.store->image()->bytes().data() + slot.begin;
    const auto at = std::size_t(outline.layer->data() - begin);
    if (at <= 0xffff && outline.layer->size() <= 0xff) {
        slot.layerAt = std::uint16_t(at);
        slot.layerSize = std::uint8_t(outline.layer->size());
    }
}

} // namespace

CKvEntityIndex::CKvEntityIndex(CKvDrawingStore &store)
    : m_store(store)
    , m_users(store)
{
}

bool CKvEntityIndex::readSection(CKvSectionReader &reader)
{
    if (reader.sectionName() == "BLOCKS") {
        readBlocks(reader);
        return true;
    }
    if (reader.sectionName() == "ENTITIES") {
        readEntities(reader);
        return true;
    }
    return false;
}

CKvObjectSlot &CKvEntityIndex::makeSlot(const CKvObjectOutline &outline)
{
    const bool isEdge = outline.type == "BLOCK" || outline.type == "ENDBLK";
    const CKvObjectSlot::Role role = isEdge  ? CKvObjectSlot::Role::BlockEdge
        : isPartOfEntityBefore(outline.type) ? CKvObjectSlot::Role::SubEntity
                                             : CKvObjectSlot::Role::Entity;
    CKvObjectSlot &slot = m_store.makeSlot(role, outline.type);
    slot.begin = outline.begin;
    slot.end = outline.end;
    slot.handle = outline.handle;
    add(slot);
    m_users.noteRead(slot, outline);
    noteLayerPlace(slot, outline);
    return slot;
}

void CKvEntityIndex::add(CKvObjectSlot &slot)
{
    m_all.push_back(&slot);
    m_largestHandle = std::max(m_largestHandle, slot.handle);
}

CKvObjectSlot *CKvEntityIndex::findByHandle(std::uint64_t handle)
{
    if (m_byHandle.size() != m_all.size()) {
        m_byHandle = m_all;
        const auto isBefore = [](const CKvObjectSlot *a, const CKvObjectSlot *b) {
            return a->handle < b->handle;
        };
        // Stable, so that of two objects with one handle the first of the file is found.
        std::stable_sort(m_byHandle.begin(), m_byHandle.end(), isBefore);
    }
    const auto found = std::lower_bound(
        m_byHandle.begin(),
        m_byHandle.end(),
        handle,
        [](const CKvObjectSlot *slot, std::uint64_t wanted) { return slot->handle < wanted; });
    return handle != 0 && found != m_byHandle.end() && (*found)->handle == handle ? *found
                                                                                  : nullptr;
}

CKvObjectSlot &CKvEntityIndex::space(bool isPaper)
{
    CKvObjectSlot *&known = m_spaces[isPaper ? 1 : 0];
    if (!known) {
        known = &m_store.blockOrNew(isPaper ? QStringLiteral("*Paper_Space")
                                            : QStringLiteral("*Model_Space"));
    }
    return *known;
}

CKvObjectSlot &CKvEntityIndex::blockFor(CKvObjectSlot &begin, const CKvObjectOutline &outline)
{
    CKvObjectSlot *owner = outline.owner ? m_store.findRecordByHandle(outline.owner) : nullptr;
    if (owner && m_store.isRecordOf(*owner, CKvTableKind::Block) && !m_contents[owner].begin) {
        return *owner;
    }
    // R12 has no block records, and calls the spaces $MODEL_SPACE and $PAPER_SPACE.
    QString name = recordName(begin);
    if (name.compare(QLatin1String("$MODEL_SPACE"), Qt::CaseInsensitive) == 0
        || name.compare(QLatin1String("$PAPER_SPACE"), Qt::CaseInsensitive) == 0) {
        name[0] = QLatin1Char('*');
    }
    return m_store.blockOrNew(name);
}

void CKvEntityIndex::readBlocks(CKvSectionReader &reader)
{
    CKvObjectOutline outline;
    CKvObjectSlot *block = nullptr;
    while (reader.nextObject(outline)) {
        CKvObjectSlot &slot = makeSlot(outline);
        if (outline.type == "BLOCK") {
            block = &blockFor(slot, outline);
            m_contents[block].begin = &slot;
        } else if (!block) {
            reader.warn(outline.begin, QStringLiteral("An entity stands in no block; it is kept."));
            continue;
        } else if (outline.type == "ENDBLK") {
            m_contents[block].end = &slot;
        } else {
            m_contents[block].entities.push_back(&slot);
        }
        slot.owner = block;
        if (outline.type == "ENDBLK") {
            block = nullptr;
        }
    }
    m_blocksEnd = reader.contentEnd();
}

void CKvEntityIndex::makeRoom(CKvBlockContents &contents,
                              const CKvObjectOutline &outline,
                              std::size_t begin,
                              std::size_t end)
{
    // Growing step by step would copy the lists over and over.
    const std::size_t read = outline.end - begin;
    const std::size_t left = end > outline.end ? end - outline.end : 0;
    const std::size_t expected = left / (read / kFirstEntities + 1);
    m_all.reserve(m_all.size() + expected);
    contents.entities.reserve(contents.entities.size() + expected);
}

void CKvEntityIndex::readEntities(CKvSectionReader &reader)
{
    CKvObjectOutline outline;
    CKvObjectSlot *block = nullptr;
    std::uint64_t lastOwner = 0;
    CKvBlockContents *contents = nullptr;
    std::size_t count = 0;
    while (reader.nextObject(outline)) {
        CKvObjectSlot &slot = makeSlot(outline);
        const bool isPart = slot.role == CKvObjectSlot::Role::SubEntity || outline.type == "ATTRIB";
        if (!block || (!isPart && (outline.owner == 0 || outline.owner != lastOwner))) {
            CKvObjectSlot *owner =
                outline.owner ? m_store.findRecordByHandle(outline.owner) : nullptr;
            const bool isBlock = owner && m_store.isRecordOf(*owner, CKvTableKind::Block);
            block = isBlock ? owner : &space(outline.isInPaperSpace);
            contents = &m_contents[block];
            lastOwner = isBlock ? outline.owner : 0;
        }
        contents->entities.push_back(&slot);
        slot.owner = block;
        if (++count == kFirstEntities) {
            makeRoom(*contents, outline, reader.contentBegin(), reader.end());
        }
    }
    m_entitiesEnd = reader.contentEnd();
}

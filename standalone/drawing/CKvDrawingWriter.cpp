// SPDX-License-Identifier: MIT
#include "CKvDrawingWriter.h"

#include "CKvDrawingStore.h"
#include "CKvEntityIndex.h"
#include "CKvTagReader.h"
#include "nameUses.h"
#include "objectTags.h"
#include "recordNames.h"

#include <algorithm>
#include <unordered_map>

namespace
{

/// The records that the saved file has. The record of a block that the file's table lacks is made
/// up for the walk, and not written as long as nobody changes it.
std::size_t lastingRecords(const CKvTable &table)
{
    const auto &records = table.records();
    return std::size_t(
        std::count_if(records.begin(), records.end(), [](const CKvObjectSlot *record) {
            const bool isMadeUp = record->begin == record->end && !record->isTouched;
            return !record->isErased && !isMadeUp;
        }));
}

bool needsNewHandle(const CKvObjectSlot &slot)
{
    const bool isNew = slot.begin == slot.end && slot.role != CKvObjectSlot::Role::Header;
    return isNew && slot.own && !slot.isErased && slot.handle != 0;
}

} // namespace

CKvDrawingWriter::CKvDrawingWriter(CKvDrawingStore &store)
    : m_store(store)
{
    if (std::any_of(store.touched().begin(), store.touched().end(), [&](const CKvObjectSlot *slot) {
            return needsNewHandle(*slot) && slot != store.rootDictionary();
        })) {
        store.writeHandleSeed();
    }
    // By number: the header may join the list meanwhile.
    clearPointersToErased();
    m_moved.reserve(store.touched().size());
    for (const CKvObjectSlot *slot : store.touched()) {
        addEdit(*slot);
    }
    for (const auto &cleared : m_cleared) {
        if (!cleared.first->isTouched) {
            addEdit(*cleared.first);
        }
    }
    addTables();
    addBlocksSection();
    addObjectsSection();
    const auto isBefore = [](const Edit &a, const Edit &b) { return a.begin < b.begin; };
    std::stable_sort(m_edits.begin(), m_edits.end(), isBefore);
    const auto standsBefore = [](const CKvObjectSlot *a, const CKvObjectSlot *b) {
        return a->begin < b->begin;
    };
    // A million of them as a rule come in the order of the file.
    if (!std::is_sorted(m_moved.begin(), m_moved.end(), standsBefore)) {
        std::sort(m_moved.begin(), m_moved.end(), standsBefore);
    }
}

CKvDrawingWriter::Edit CKvDrawingWriter::moveOf(const CKvObjectSlot &slot) const
{
    const std::size_t begin = slot.begin + slot.layerAt;
    return { begin, begin + slot.layerSize, m_store.movedLayerName(slot) };
}

template <class Action> void CKvDrawingWriter::forEachEdit(Action action) const
{
    auto moved = m_moved.begin();
    for (const Edit &edit : m_edits) {
        for (; moved != m_moved.end() && (*moved)->begin < edit.begin; ++moved) {
            action(moveOf(**moved));
        }
        action(edit);
    }
    for (; moved != m_moved.end(); ++moved) {
        action(moveOf(**moved));
    }
}

std::string_view CKvDrawingWriter::keep(std::string bytes)
{
    return m_made.emplace_back(std::move(bytes));
}

std::string_view CKvDrawingWriter::bytesOf(const CKvObjectSlot &slot) const
{
    const auto cleared = m_cleared.find(&slot);
    return cleared != m_cleared.end() ? std::string_view(cleared->second) : slot.bytes();
}

bool CKvDrawingWriter::isAsRead(const CKvObjectSlot &slot) const
{
    const std::string_view file = m_store.image()->bytes();
    return slot.begin != slot.end && slot.bytes() == file.substr(slot.begin, slot.end - slot.begin);
}

void CKvDrawingWriter::clearPointersToErased()
{
    // With each handle, whether the file has the object.
    std::unordered_map<std::uint64_t, bool> erased;
    for (const CKvObjectSlot *slot : m_store.touched()) {
        if (slot->isErased && slot->handle != 0) {
            erased[slot->handle] |= slot->begin != slot->end;
        }
    }
    if (erased.empty()) {
        return;
    }
    const auto clear = [&](const CKvObjectSlot &slot) {
        CKvTagReader reader(slot.bytes(), slot.form());
        std::vector<CKvTag> tags;
        while (reader.next()) {
            const int code = reader.tag().code;
            if ((code >= 340 && code <= 349) || code == 1005) {
                // A pointer to nothing in the file may have the number that a new object had.
                const auto pointed = erased.find(reader.tag().handle());
                if (pointed != erased.end() && (pointed->second || !isAsRead(slot))) {
                    tags.push_back(reader.tag());
                }
            }
        }
        if (tags.empty() || slot.isErased) {
            return;
        }
        std::string bytes(slot.bytes());
        for (auto tag = tags.rbegin(); tag != tags.rend(); ++tag) {
            replaceTagValue(bytes, *tag, "0");
        }
        m_cleared.emplace(&slot, std::move(bytes));
    };
    forEachUndrawnSlot(m_store, clear);
    for (const auto &[handle, isInFile] : erased) {
        for (const CKvObjectSlot *holder : m_store.entities().users().holdersOf(handle)) {
            clear(*holder);
        }
    }
}

void CKvDrawingWriter::addEdit(const CKvObjectSlot &slot)
{
    if (slot.begin == slot.end) {
        if (!slot.isErased && slot.own) {
            addNew(slot);
        }
        return;
    }
    const std::string_view inFile =
        m_store.image()->bytes().substr(slot.begin, slot.end - slot.begin);
    if (slot.isErased) {
        m_edits.push_back({ slot.begin, slot.end, {} });
    } else if (slot.movedTo != 0) {
        if (inFile.substr(slot.layerAt, slot.layerSize) != m_store.movedLayerName(slot)) {
            m_moved.push_back(&slot);
        }
    } else if (slot.role != CKvObjectSlot::Role::TableHead && bytesOf(slot) != inFile) {
        m_edits.push_back({ slot.begin, slot.end, bytesOf(slot) });
    }
}

void CKvDrawingWriter::addNew(const CKvObjectSlot &slot)
{
    using Role = CKvObjectSlot::Role;
    switch (slot.role) {
    case Role::Record:
        for (std::size_t i = 0; i < kTableCount; ++i) {
            const CKvTable &table = m_store.table(CKvTableKind(i));
            // R12 and older have blocks, but no records of them.
            const bool hasNoPlace =
                table.kind() == CKvTableKind::Block && !m_store.format().hasDictionaries();
            if (hasNoPlace || !m_store.isRecordOf(slot, table.kind())) {
                continue;
            }
            if (table.isInFile()) {
                m_edits.push_back({ table.endInFile(), table.endInFile(), bytesOf(slot) });
            } else {
                m_newTables[&table.head()] += bytesOf(slot);
            }
        }
        break;
    case Role::Object:
        if (m_store.objectsEnd() != 0) {
            m_edits.push_back({ m_store.objectsEnd(), m_store.objectsEnd(), bytesOf(slot) });
        } else {
            m_newObjects += bytesOf(slot);
            m_hasNewObjects = m_hasNewObjects || &slot != m_store.rootDictionary();
        }
        break;
    case Role::Entity:
    case Role::SubEntity:
    case Role::BlockEdge:
        if (const std::size_t place = placeOfEntity(slot)) {
            m_edits.push_back({ place, place, bytesOf(slot) });
        } else {
            m_newBlocks += bytesOf(slot);
        }
        break;
    case Role::Header:
    case Role::TableHead:
    case Role::StandIn:
    case Role::Detached:
        break;
    }
}

std::size_t CKvDrawingWriter::placeOfEntity(const CKvObjectSlot &slot) const
{
    CKvEntityIndex &index = m_store.entities();
    // What is drawn in a space stands in a section of its own, not in the space's block.
    const bool isInSpace = slot.owner && isSpaceName(recordName(*slot.owner));
    if (isInSpace && index.entitiesEnd() != 0) {
        return index.entitiesEnd();
    }
    const CKvObjectSlot *end = index.contentsOf(*slot.owner).end;
    return end && end->begin != end->end ? end->begin : index.blocksEnd();
}

void CKvDrawingWriter::addTableCount(CKvTable &table)
{
    CKvObjectSlot &head = table.head();
    std::string bytes(head.bytes());
    const std::optional<CKvTag> count = findTag(head, 70);
    // A number that was wrong before is somebody else's; one that was right stays right.
    if (count && table.uncountedRecords() && lastingRecords(table) != table.recordsInFile()) {
        const std::size_t number = lastingRecords(table) - *table.uncountedRecords();
        replaceTagValue(bytes, *count, std::to_string(number));
    }
    const std::string_view inFile =
        m_store.image()->bytes().substr(head.begin, head.end - head.begin);
    if (bytes != inFile) {
        m_edits.push_back({ head.begin, head.end, keep(std::move(bytes)) });
    }
}

void CKvDrawingWriter::addTables()
{
    const CKvTagStyle &style = m_store.format().style;
    for (std::size_t i = 0; i < kTableCount; ++i) {
        CKvTable &table = m_store.table(CKvTableKind(i));
        if (table.isInFile()) {
            addTableCount(table);
            continue;
        }
        const auto records = m_newTables.find(&table.head());
        if (records == m_newTables.end() || m_store.tablesEnd() == 0) {
            continue;
        }
        std::string bytes;
        appendTag(bytes, style, 0, "TABLE");
        appendTag(bytes, style, 2, kTableNames[i]);
        if (m_store.format().hasDictionaries()) {
            appendTag(bytes, style, 5, handleToText(table.head().handle));
            appendTag(bytes, style, 330, "0");
            appendTag(bytes, style, 100, "AcDbSymbolTable");
        }
        appendTag(bytes, style, 70, std::to_string(lastingRecords(table)));
        bytes += records->second;
        appendTag(bytes, style, 0, "ENDTAB");
        m_edits.push_back({ m_store.tablesEnd(), m_store.tablesEnd(), keep(std::move(bytes)) });
    }
}

void CKvDrawingWriter::addBlocksSection()
{
    // Behind the tables, where every file has it.
    if (m_newBlocks.empty() || m_store.tablesEnd() == 0) {
        return;
    }
    const CKvTagStyle &style = m_store.format().style;
    CKvTagReader reader(m_store.image()->bytes(), style.form, m_store.tablesEnd());
    const bool isClosed = reader.next() && reader.tag().isWord(0, "ENDSEC");
    std::string bytes;
    if (!isClosed) {
        appendTag(bytes, style, 0, "ENDSEC");
    }
    appendTag(bytes, style, 0, "SECTION");
    appendTag(bytes, style, 2, "BLOCKS");
    bytes += m_newBlocks;
    appendTag(bytes, style, 0, "ENDSEC");
    const std::size_t at = isClosed ? reader.tag().end : m_store.tablesEnd();
    m_edits.push_back({ at, at, keep(std::move(bytes)) });
}

void CKvDrawingWriter::addObjectsSection()
{
    // A named objects dictionary with nothing in it is no change worth a section.
    if (!m_hasNewObjects) {
        return;
    }
    const CKvTagStyle &style = m_store.format().style;
    std::string bytes;
    if (m_store.isLastSectionOpen()) {
        appendTag(bytes, style, 0, "ENDSEC");
    }
    appendTag(bytes, style, 0, "SECTION");
    appendTag(bytes, style, 2, "OBJECTS");
    bytes += m_newObjects;
    appendTag(bytes, style, 0, "ENDSEC");
    m_edits.push_back({ m_store.endOfSections(), m_store.endOfSections(), keep(std::move(bytes)) });
}

void CKvDrawingWriter::write(const Sink &sink) const
{
    constexpr std::size_t kMostGathered = 1 << 16;
    const std::string_view file = m_store.image()->bytes();
    std::string gathered;
    gathered.reserve(kMostGathered);
    // A merge makes millions of small pieces; each as a call of its own would cost more than it is.
    const auto put = [&](std::string_view piece) {
        if (gathered.size() + piece.size() > kMostGathered) {
            sink(gathered);
            gathered.clear();
        }
        if (piece.size() > kMostGathered) {
            sink(piece);
        } else {
            gathered.append(piece);
        }
    };
    std::size_t written = 0;
    forEachEdit([&](const Edit &edit) {
        put(file.substr(written, edit.begin - written));
        put(edit.bytes);
        written = edit.end;
    });
    put(file.substr(written));
    sink(gathered);
}

std::size_t CKvDrawingWriter::size() const
{
    std::size_t size = m_store.image()->bytes().size();
    forEachEdit([&](const Edit &edit) { size += edit.bytes.size() - (edit.end - edit.begin); });
    return size;
}

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingFormat.h"
#include "CKvFileImage.h"
#include "CKvHeaderVariables.h"
#include "CKvSlotPool.h"
#include "CKvTable.h"
#include "CKvTableKind.h"

#include <QStringList>

#include <array>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class CKvChangeJournal;
class CKvDrawingLoader;
class CKvEntityIndex;
class OdDbDatabase;
class OdDbDatabaseReactor;

/// The objects of one drawing on the bytes of its file. Header, tables and dictionaries are known
/// from the start; blocks and entities from the first call of entities().
class CKvDrawingStore
{
public:
    /// An empty store; CKvDrawingLoader fills it.
    CKvDrawingStore(CKvFileImagePtr image, const CKvDrawingFormat &format);
    ~CKvDrawingStore();
    CKvDrawingStore(const CKvDrawingStore &) = delete;
    CKvDrawingStore &operator=(const CKvDrawingStore &) = delete;

    const CKvFileImagePtr &image() const { return m_image; }
    const CKvDrawingFormat &format() const { return m_format; }
    CKvHeaderVariables header() { return CKvHeaderVariables(*m_header); }
    CKvObjectSlot &headerSlot() { return *m_header; }
    CKvTable &table(CKvTableKind kind) { return *m_tables[std::size_t(kind)]; }
    const CKvTable &table(CKvTableKind kind) const { return *m_tables[std::size_t(kind)]; }
    /// Null in a drawing without dictionaries.
    CKvObjectSlot *rootDictionary() const { return m_rootDictionary; }
    /// The same, made when the file has none; saving writes it only with something in it.
    CKvObjectSlot &requireRootDictionary();
    /// The objects of the section OBJECTS in the order of the file, then the new ones.
    const std::vector<CKvObjectSlot *> &objects() const { return m_objects; }
    /// Reads blocks and entities at the first call.
    /// @throws CKvDxfError when they are damaged.
    CKvEntityIndex &entities();
    bool hasEntities() const { return m_entities != nullptr; }
    QStringList &warnings() { return m_warnings; }

    /// Any object; null when there is none.
    CKvObjectSlot *findByHandle(std::uint64_t handle);
    /// A table record or an object of the section OBJECTS; entities are not looked at.
    CKvObjectSlot *findRecordByHandle(std::uint64_t handle) const;
    bool isRecordOf(const CKvObjectSlot &slot, CKvTableKind kind) const;
    /// The record of a block, made up when the file has none (R12 has no block records at all).
    CKvObjectSlot &blockOrNew(const QString &name);

    /// @param type the word behind group 0.
    CKvObjectSlot &makeSlot(CKvObjectSlot::Role role, std::string_view type);
    CKvObjectSlot &makeTableHead(CKvTableKind kind);
    /// A handle that no object has.
    std::uint64_t newHandle();
    /// Lets the header's HANDSEED lie above the handles that were given. Left to saving, since an
    /// object that is not written needs no handle.
    void writeHandleSeed();
    void registerHandle(CKvObjectSlot &slot);
    /// Puts a slot into the list of what saving has to look at.
    void touch(CKvObjectSlot &slot);
    /// As touch, for a slot whose bytes are about to change.
    void noteChange(CKvObjectSlot &slot);
    /// Gives an entity whose layer's place is known (CKvObjectSlot::layerAt) another layer.
    /// @return false when there are too many names for that; the entity is as it was then.
    bool moveToLayer(CKvObjectSlot &entity, std::string_view encodedName);
    /// Of an entity that was moved.
    std::string_view movedLayerName(const CKvObjectSlot &entity) const
    {
        return m_movedLayers[entity.movedTo];
    }
    const std::vector<CKvObjectSlot *> &touched() const { return m_touched; }
    /// False in R12 and older without $HANDLING 1: what stands in group 5 counts for nothing then.
    bool hasHandles() const { return m_hasHandles; }
    /// Enters a new object of the section OBJECTS.
    void addObject(CKvObjectSlot &slot);

    /// Offsets before which new tables and new objects go; 0 when the file lacks the section.
    std::size_t tablesEnd() const { return m_tablesEnd; }
    std::size_t objectsEnd() const { return m_objectsEnd; }
    /// Offset of the EOF mark, or of the end of the file where it is missing.
    std::size_t endOfSections() const { return m_endOfSections; }
    /// What is put there has to close the last section first.
    bool isLastSectionOpen() const { return m_isLastSectionOpen; }
    /// The object that stands behind another one in the file, null at the end of those that were
    /// read.
    CKvObjectSlot *slotBehind(const CKvObjectSlot &slot);

    /// The file that the drawing was read from as it was then, or when it was last saved there;
    /// nothing for a drawing from memory.
    std::optional<CKvFileIdentity> ownFile;
    /// All objects that were ever made, in that order.
    std::size_t slotCount() const { return m_slots.size(); }
    CKvObjectSlot &slotAt(std::size_t index) { return m_slots[index]; }

    OdDbDatabase *database = nullptr;
    /// Notes what changes; null when nobody wants to take changes back.
    CKvChangeJournal *journal = nullptr;
    std::vector<OdDbDatabaseReactor *> reactors;

private:
    friend class CKvDrawingLoader;

    CKvFileImagePtr m_image;
    CKvDrawingFormat m_format;
    CKvSlotPool m_slots;
    std::string m_lastType;
    CKvObjectSlot::Role m_lastRole = CKvObjectSlot::Role::Detached;
    OdRxClass *m_lastClass = nullptr;
    CKvObjectSlot *m_header;
    std::array<std::unique_ptr<CKvTable>, kTableCount> m_tables;
    CKvObjectSlot *m_rootDictionary = nullptr;
    std::vector<CKvObjectSlot *> m_objects;
    std::unordered_map<std::uint64_t, CKvObjectSlot *> m_byHandle;
    std::unique_ptr<CKvEntityIndex> m_entities;
    std::vector<CKvObjectSlot *> m_touched;
    /// Names that moved entities have; the first one stands for none.
    std::deque<std::string> m_movedLayers = { std::string() };
    /// The part of the file that entities() reads.
    std::size_t m_unreadBegin = 0;
    std::size_t m_unreadEnd = 0;
    std::size_t m_tablesEnd = 0;
    std::size_t m_objectsEnd = 0;
    std::size_t m_endOfSections = 0;
    bool m_isLastSectionOpen = false;
    std::uint64_t m_largestHandle = 0;
    bool m_hasHandles = false;
    QStringList m_warnings;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBlockContents.h"
#include "CKvUserIndex.h"

#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

class CKvDrawingStore;
class CKvSectionReader;
struct CKvObjectOutline;

/// The entities of a drawing by block, and by handle. Made at the first walk, from the sections
/// BLOCKS and ENTITIES.
class CKvEntityIndex
{
public:
    explicit CKvEntityIndex(CKvDrawingStore &store);

    /// Reads the section that the reader has just entered, if it is one of the two.
    /// @return false for any other section.
    bool readSection(CKvSectionReader &reader);

    /// Of a record of the block table. Never null; empty for a block without contents.
    CKvBlockContents &contentsOf(CKvObjectSlot &block) { return m_contents[&block]; }
    /// All blocks' edges and entities in the order of the file, then what was added.
    const std::vector<CKvObjectSlot *> &all() const { return m_all; }
    CKvObjectSlot *findByHandle(std::uint64_t handle);
    /// Offset before which entities of BLOCKS and of ENTITIES are added; 0 when the file lacks the
    /// section.
    std::size_t blocksEnd() const { return m_blocksEnd; }
    std::size_t entitiesEnd() const { return m_entitiesEnd; }
    std::uint64_t largestHandle() const { return m_largestHandle; }
    /// Enters a new object.
    void add(CKvObjectSlot &slot);
    /// Who names a record.
    CKvUserIndex &users() { return m_users; }

private:
    void readBlocks(CKvSectionReader &reader);
    void readEntities(CKvSectionReader &reader);
    CKvObjectSlot &makeSlot(const CKvObjectOutline &outline);
    CKvObjectSlot &blockFor(CKvObjectSlot &begin, const CKvObjectOutline &outline);
    CKvObjectSlot &space(bool isPaper);
    /// Makes room for as many entities as the bytes to the end will hold.
    void makeRoom(CKvBlockContents &contents,
                  const CKvObjectOutline &outline,
                  std::size_t begin,
                  std::size_t end);

    CKvDrawingStore &m_store;
    CKvUserIndex m_users;
    CKvObjectSlot *m_spaces[2] = {};
    std::unordered_map<const CKvObjectSlot *, CKvBlockContents> m_contents;
    std::vector<CKvObjectSlot *> m_all;
    /// By handle, and where that is the same in the order of the file; made when somebody asks.
    std::vector<CKvObjectSlot *> m_byHandle;
    std::size_t m_blocksEnd = 0;
    std::size_t m_entitiesEnd = 0;
    std::uint64_t m_largestHandle = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingStore.h"
#include "CKvFileImage.h"

#include <array>
#include <memory>

class CKvSectionReader;
struct CKvObjectOutline;

/// Reads what a drawing's store has to know from the start: header, tables and dictionaries. Blocks
/// and entities are passed over where their end can be found without reading them.
class CKvDrawingLoader
{
public:
    explicit CKvDrawingLoader(CKvFileImagePtr image);

    /// @throws CKvDxfError for what is no drawing, and for a damaged one.
    std::unique_ptr<CKvDrawingStore> load();

private:
    void readSections(CKvSectionReader &reader);
    void readHeader(CKvSectionReader &reader);
    void readTables(CKvSectionReader &reader);
    void readObjects(CKvSectionReader &reader);
    void beginTable(CKvSectionReader &reader, const CKvObjectOutline &outline);
    void endTable(CKvSectionReader &reader, std::size_t offset);
    /// @return true when the sections from here to OBJECTS can wait for the first walk.
    bool postponeEntities(CKvSectionReader &reader);

    CKvFileImagePtr m_image;
    std::unique_ptr<CKvDrawingStore> m_store;
    CKvTable *m_table = nullptr;
    /// Of each table, counted as its records come: a table may stand in the file many times, and
    /// behind blocks that it lacks.
    std::array<std::size_t, kTableCount> m_records = {};
    std::array<std::size_t, kTableCount> m_reservedRecords = {};
    bool m_hasSeenTables = false;
};

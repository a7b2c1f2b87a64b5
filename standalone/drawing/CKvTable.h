// SPDX-License-Identifier: MIT
#pragma once

#include "CKvNameIndex.h"
#include "CKvTableKind.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class CKvDrawingStore;

/// The records of one table of a drawing.
class CKvTable
{
public:
    CKvTable(CKvDrawingStore &store, CKvTableKind kind);

    CKvTableKind kind() const { return m_kind; }
    /// The table as an object; the file may lack it.
    CKvObjectSlot &head() const { return *m_head; }
    void setHead(CKvObjectSlot &head) { m_head = &head; }
    /// Offset in the file before which new records go; 0 when the file lacks the table.
    std::size_t endInFile() const { return m_endInFile; }
    void setEndInFile(std::size_t offset) { m_endInFile = offset; }
    bool isInFile() const { return m_endInFile != 0; }
    /// How many records the number in the table's head (group 70) leaves out; it is kept true then.
    /// None when the number is missing or wrong.
    std::optional<std::size_t> uncountedRecords() const { return m_uncounted; }
    /// To be called when all records of the file are there.
    /// @param recordsInFile without those that were made up for blocks that the table lacks.
    void setUncountedRecords(std::optional<std::size_t> count, std::size_t recordsInFile)
    {
        m_uncounted = count;
        m_recordsInFile = recordsInFile;
    }
    std::size_t recordsInFile() const { return m_recordsInFile; }

    /// In the order of the file, erased ones too.
    const std::vector<CKvObjectSlot *> &records() const { return m_records; }
    void add(CKvObjectSlot &record);
    /// Null when there is none that is not erased.
    CKvObjectSlot *find(const QString &name);
    /// As find, by the name as the file spells it; answers are remembered.
    CKvObjectSlot *findEncoded(std::string_view encodedName);
    /// As find, or a stand-in of that spelling.
    CKvObjectSlot &findOrStandIn(std::string_view encodedName);
    /// A record's name as the file spells it; the last answer is remembered.
    const std::string &encodedNameOf(const CKvObjectSlot &record);
    /// To be called when a record is about to change.
    void forgetLastNames() { m_lastNamed = nullptr; }

    /// To be called after a record got another name, was erased or brought back.
    void nameChanged(CKvObjectSlot &record, const QString &oldName);
    void erasedChanged(CKvObjectSlot &record);

private:
    void rebuild();
    void forgetEncodedNames();
    CKvObjectSlot *makeStandIn(std::string_view encodedName);

    CKvDrawingStore &m_store;
    CKvTableKind m_kind;
    CKvObjectSlot *m_head;
    std::size_t m_endInFile = 0;
    std::optional<std::size_t> m_uncounted;
    std::size_t m_recordsInFile = 0;
    std::vector<CKvObjectSlot *> m_records;
    /// The file has, or had, two records of one name; only then does a name that is let go need a
    /// search.
    bool m_hasDoubleNames = false;
    CKvNameIndex m_index;
    /// By the very spelling: each user of a name gets it back as it wrote it.
    std::unordered_map<std::string, CKvObjectSlot *> m_standIns;
    std::unordered_map<std::string, CKvObjectSlot *> m_encodedNames;
    /// The last answers: many entities one after the other name the same record.
    std::string m_lastEncoded;
    CKvObjectSlot *m_lastFound = nullptr;
    bool m_hasLastFound = false;
    const CKvObjectSlot *m_lastNamed = nullptr;
    std::string m_lastName;
};

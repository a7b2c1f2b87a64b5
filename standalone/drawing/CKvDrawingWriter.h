// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class CKvDrawingStore;
class CKvObjectSlot;
class CKvTable;

/// Turns a drawing back into the bytes of a file: the file's own, but for the objects that changed.
class CKvDrawingWriter
{
public:
    /// @param store must outlive the writer and not change meanwhile.
    explicit CKvDrawingWriter(CKvDrawingStore &store);

    /// False when the file would be written as it was read.
    bool isChanged() const { return !m_edits.empty() || !m_moved.empty(); }
    /// Takes the next piece of the file.
    using Sink = std::function<void(std::string_view)>;
    /// Gives the file in pieces of a size that is worth a call.
    void write(const Sink &sink) const;
    /// Of the file in bytes.
    std::size_t size() const;

private:
    /// Bytes that take the place of a range of the file; an empty range inserts.
    struct Edit {
        std::size_t begin;
        std::size_t end;
        std::string_view bytes;
    };

    Edit moveOf(const CKvObjectSlot &slot) const;
    /// In the order of the file.
    template <class Action> void forEachEdit(Action action) const;
    bool isAsRead(const CKvObjectSlot &slot) const;
    void clearPointersToErased();
    std::string_view bytesOf(const CKvObjectSlot &slot) const;
    void addEdit(const CKvObjectSlot &slot);
    void addNew(const CKvObjectSlot &slot);
    std::size_t placeOfEntity(const CKvObjectSlot &slot) const;
    void addTables();
    void addTableCount(CKvTable &table);
    void addBlocksSection();
    void addObjectsSection();
    std::string_view keep(std::string bytes);

    CKvDrawingStore &m_store;
    std::vector<Edit> m_edits;
    /// Entities in which nothing but the layer is another: these can be very many.
    std::vector<const CKvObjectSlot *> m_moved;
    std::deque<std::string> m_made;
    std::map<const CKvObjectSlot *, std::string> m_newTables;
    /// Objects whose pointers to erased ones are written as 0.
    std::map<const CKvObjectSlot *, std::string> m_cleared;
    /// For a section BLOCKS that the file lacks.
    std::string m_newBlocks;
    std::string m_newObjects;
    bool m_hasNewObjects = false;
};

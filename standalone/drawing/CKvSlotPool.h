// SPDX-License-Identifier: MIT
#pragma once

#include "CKvObjectSlot.h"

#include <cstddef>
#include <memory>
#include <new>
#include <vector>

/// All slots of a drawing in the order in which they were made. A slot never moves.
class CKvSlotPool
{
public:
    CKvSlotPool() = default;
    ~CKvSlotPool();
    CKvSlotPool(const CKvSlotPool &) = delete;
    CKvSlotPool &operator=(const CKvSlotPool &) = delete;

    CKvObjectSlot &add()
    {
        if (m_size == m_room) {
            addPiece();
        }
        return *new (&(*this)[m_size++]) CKvObjectSlot;
    }
    std::size_t size() const { return m_size; }
    CKvObjectSlot &operator[](std::size_t index)
    {
        return index < kFirstPiece ? m_pieces[0].get()[index] : inLaterPiece(index - kFirstPiece);
    }

private:
    /// A drawing whose entities nobody walks over has few objects; then come as many at a time as
    /// a huge page of the system holds.
    static constexpr std::size_t kHugePage = std::size_t(2) << 20;
    static constexpr std::size_t kFirstPiece = 256;
    static constexpr std::size_t kLaterPiece = kHugePage / sizeof(CKvObjectSlot);

    struct Freeing {
        /// What the memory was asked for with.
        std::align_val_t alignment;
        void operator()(CKvObjectSlot *memory) const { ::operator delete(memory, alignment); }
    };

    using Piece = std::unique_ptr<CKvObjectSlot, Freeing>;

    void addPiece();
    CKvObjectSlot &inLaterPiece(std::size_t index)
    {
        return m_pieces[1 + index / kLaterPiece].get()[index % kLaterPiece];
    }

    /// Memory of which the first m_size places are taken.
    std::vector<Piece> m_pieces;
    std::size_t m_size = 0;
    std::size_t m_room = 0;
};

// SPDX-License-Identifier: MIT
#include "CKvSlotPool.h"

#include <new>

#include <sys/mman.h>

CKvSlotPool::~CKvSlotPool()
{
    for (std::size_t i = 0; i < m_size; ++i) {
        (*this)[i].~CKvObjectSlot();
    }
}

void CKvSlotPool::addPiece()
{
    const bool isFirst = m_pieces.empty();
    void *const memory = isFirst ? std::malloc(kFirstPiece * sizeof(CKvObjectSlot))
                                 : std::aligned_alloc(kHugePage, kHugePage);
    if (!memory) {
        throw std::bad_alloc();
    }
    m_pieces.emplace_back(static_cast<CKvObjectSlot *>(memory));
    m_room += isFirst ? kFirstPiece : kLaterPiece;
    if (!isFirst) {
        // The slots of a million entities are a tenth of the work when the system hands out their
        // memory in small pages. It is advice, so it doesn't matter when it isn't taken.
        madvise(memory, kHugePage, MADV_HUGEPAGE);
    }
}

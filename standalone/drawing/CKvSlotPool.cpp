// SPDX-License-Identifier: MIT
#include "CKvSlotPool.h"

#include <utility>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace
{

/// The slots of a million entities are a tenth of the work when the system hands out their memory
/// in small pages. It is advice, so it doesn't matter when it isn't taken.
void adviseHugePages([[maybe_unused]] void *memory, [[maybe_unused]] std::size_t size)
{
#ifdef __linux__
    madvise(memory, size, MADV_HUGEPAGE);
#endif
}

} // namespace

CKvSlotPool::~CKvSlotPool()
{
    for (std::size_t i = 0; i < m_size; ++i) {
        (*this)[i].~CKvObjectSlot();
    }
}

void CKvSlotPool::addPiece()
{
    const bool isFirst = m_pieces.empty();
    const std::size_t size = isFirst ? kFirstPiece * sizeof(CKvObjectSlot) : kHugePage;
    const auto alignment = std::align_val_t(isFirst ? alignof(CKvObjectSlot) : kHugePage);
    Piece piece(static_cast<CKvObjectSlot *>(::operator new(size, alignment)),
                Freeing { alignment });
    if (!isFirst) {
        adviseHugePages(piece.get(), size);
    }
    m_pieces.push_back(std::move(piece));
    m_room += isFirst ? kFirstPiece : kLaterPiece;
}

// SPDX-License-Identifier: MIT
#include "CKvPicture.h"

std::uint32_t CKvPicture::styleIndex(const CKvPictureStyle &style)
{
    const auto [place, isNew] = m_styleIndex.emplace(style, std::uint32_t(styles.size()));
    if (isNew) {
        styles.push_back(style);
    }
    return place->second;
}

std::uint32_t CKvPicture::fontIndex(const CKvTextFont &font)
{
    for (std::size_t i = 0; i < fonts.size(); ++i) {
        if (fonts[i].isSame(font)) {
            return std::uint32_t(i);
        }
    }
    fonts.push_back(font);
    return std::uint32_t(fonts.size() - 1);
}

CKvBox CKvPicture::visibleBounds() const
{
    CKvBox bounds;
    for (const CKvPictureItem &item : modelSpace().items) {
        const CKvPictureLayer &layer = layers[item.layer];
        // What a block shows is on layers of its own, unless the insertion is frozen.
        const bool isInsert = item.kind == CKvPictureItem::Kind::Insert;
        const bool isVisible = isInsert ? !layer.isFrozen : layer.isVisible();
        if (isVisible && !item.isDead && item.kind != CKvPictureItem::Kind::Ray) {
            bounds.add(item.box);
        }
    }
    return bounds;
}

void CKvPicture::removeEntity(const CKvObjectSlot &entity)
{
    for (CKvPictureItem &item : blocks.front().items) {
        if (item.entity == &entity) {
            item.isDead = true;
        }
    }
}

std::size_t CKvPicture::itemCount() const
{
    std::size_t count = 0;
    for (const Block &block : blocks) {
        count += block.items.size();
    }
    return count;
}

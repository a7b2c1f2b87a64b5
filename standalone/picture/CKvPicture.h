// SPDX-License-Identifier: MIT
#pragma once

#include "CKvPictureItem.h"
#include "CKvPictureStyle.h"
#include "CKvTextFont.h"

#include <map>
#include <vector>

/// What a drawing looks like: the things to draw in the order of the file, free of tags. Blocks
/// are kept once, however often they are inserted.
class CKvPicture
{
public:
    struct Block {
        std::vector<CKvPictureItem> items;
        CKvBox bounds;
    };

    /// Index 0 is model space.
    std::vector<Block> blocks { 1 };
    std::vector<QPointF> points;
    std::vector<CKvPathShape> paths;
    std::vector<CKvArcShape> arcs;
    std::vector<CKvRayShape> rays;
    std::vector<CKvTextShape> texts;
    std::vector<CKvInsertShape> inserts;
    std::vector<CKvAreaShape> areas;
    /// Rings of areas, each a range of points.
    std::vector<CKvPathShape> rings;

    std::vector<CKvPictureLayer> layers;
    std::vector<CKvPictureStyle> styles;
    /// Index 0 is continuous.
    std::vector<CKvPictureLineStyle> lineStyles { 1 };
    std::vector<CKvTextFont> fonts;
    double lineStyleScale = 1;

    const Block &modelSpace() const { return blocks.front(); }
    /// Of what model space shows: without lines that have no end, and without what is on layers
    /// that are off or frozen.
    CKvBox visibleBounds() const;
    /// The index of an equal style, entered when it is new.
    std::uint32_t styleIndex(const CKvPictureStyle &style);
    std::uint32_t fontIndex(const CKvTextFont &font);
    /// Takes everything of an entity out of model space.
    void removeEntity(const CKvObjectSlot &entity);
    /// Of all blocks, each counted once.
    std::size_t itemCount() const;

private:
    std::map<CKvPictureStyle, std::uint32_t> m_styleIndex;
};

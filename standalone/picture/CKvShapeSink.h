// SPDX-License-Identifier: MIT
#pragma once

#include "CKvPicture.h"

/// Takes the shapes of one entity into a picture, all with the entity's layer and style.
class CKvShapeSink
{
public:
    /// @param blockIndex the block of the picture that receives the items.
    CKvShapeSink(CKvPicture &picture, std::size_t blockIndex)
        : m_picture(picture)
        , m_block(blockIndex)
    {
    }

    CKvPicture &picture() const { return m_picture; }
    void setEntity(const CKvObjectSlot &entity, std::uint32_t layer, std::uint32_t style);

    /// @param width in drawing units; 0 for the lineweight.
    void path(const std::vector<QPointF> &points, bool isClosed = false, double width = 0);
    void arc(const CKvArcShape &arc);
    void ray(const CKvRayShape &ray);
    void text(const CKvTextShape &text);
    void insert(const CKvInsertShape &insert);
    /// @param families empty for a solid fill.
    void area(const std::vector<std::vector<QPointF>> &rings,
              const std::vector<CKvHatchFamily> &families = {});

private:
    CKvPathShape addPoints(const std::vector<QPointF> &points, CKvBox &box);
    void addItem(CKvPictureItem::Kind kind, std::size_t shape, const CKvBox &box);

    CKvPicture &m_picture;
    std::size_t m_block;
    const CKvObjectSlot *m_entity = nullptr;
    std::uint32_t m_layer = 0;
    std::uint32_t m_style = 0;
};

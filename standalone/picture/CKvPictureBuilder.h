// SPDX-License-Identifier: MIT
#pragma once

#include "CKvPicture.h"
#include "CKvShapeSink.h"
#include "CKvTextStyles.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class CKvDrawingStore;
class CKvEntityTags;
class CKvObjectSlot;

/// Makes the picture of a drawing, in slices so that a window stays awake meanwhile:
///
///     CKvPictureBuilder builder(store);
///     while (!builder.advance(30)) {
///         showProgress(builder.progress());
///     }
///
/// The drawing must not change between two slices. Afterwards single entities and the layers can be
/// brought up to date.
class CKvPictureBuilder
{
public:
    /// Reads blocks and entities of the drawing at the first slice.
    explicit CKvPictureBuilder(CKvDrawingStore &store);
    CKvPictureBuilder(const CKvPictureBuilder &) = delete;
    CKvPictureBuilder &operator=(const CKvPictureBuilder &) = delete;

    /// Works for about that long.
    /// @return true when the picture is complete.
    bool advance(int milliseconds);
    /// 0 to 1.
    double progress() const;
    const CKvPicture &picture() const { return m_picture; }

    /// Draws an entity of model space anew; one that is erased goes.
    /// @return false when that takes a new picture, since the entity is part of a block or of
    /// another entity.
    bool refreshEntity(CKvObjectSlot &entity);
    /// Reads the layers anew.
    void refreshLayers();

private:
    /// A block that is being walked; the one at the back is first.
    struct Walk {
        std::size_t block = 0;
        const std::vector<CKvObjectSlot *> *entities = nullptr;
        std::size_t next = 0;
    };

    void begin();
    void stepOnce();
    /// @return false when a block has to be walked first.
    bool addEntity(std::size_t block, const std::vector<CKvObjectSlot *> &entities, std::size_t at);
    bool addThroughBlock(const CKvEntityTags &tags, CKvShapeSink &sink);
    void placeInsert(const CKvEntityTags &tags, std::size_t block, CKvShapeSink &sink);
    /// Index of a block that is complete. A negative number: there is none, or it was put on the
    /// list of walks and comes first.
    int readyBlock(std::string_view encodedName);
    void setCommon(const CKvEntityTags &tags, CKvShapeSink &sink);
    std::uint32_t layerIndex(std::string_view encodedName);
    int lineStyleIndex(std::string_view encodedName);
    CKvPictureLayer readLayer(const CKvObjectSlot &slot);

    CKvDrawingStore &m_store;
    CKvPicture m_picture;
    CKvTextStyles m_textStyles;
    std::vector<Walk> m_walks;
    std::unordered_map<const CKvObjectSlot *, std::size_t> m_blockIndex;
    std::unordered_map<std::size_t, bool> m_isBlockComplete;
    /// Of the picture's blocks, by index.
    std::vector<CKvObjectSlot *> m_blockSlots;
    std::unordered_map<const CKvObjectSlot *, std::uint32_t> m_layerIndex;
    std::vector<const CKvObjectSlot *> m_layerSlots;
    std::unordered_map<const CKvObjectSlot *, int> m_lineStyleIndex;
    std::size_t m_done = 0;
    std::size_t m_total = 0;
    bool m_hasBegun = false;
};

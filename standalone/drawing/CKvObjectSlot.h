// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTag.h"
#include "OdDbObjectId.h"
#include "OdRxObject.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

class CKvDrawingStore;
class OdRxClass;
struct CKvDrawingFormat;

/// The place of one object in a drawing, the same from the first sight of the object to the end of
/// the drawing. Its tags are a slice of the file until the first change gives it bytes of its own.
class CKvObjectSlot
{
public:
    enum class Role : std::uint8_t {
        Header,
        TableHead,
        Record,
        /// BLOCK and ENDBLK.
        BlockEdge,
        Entity,
        /// VERTEX and SEQEND: part of the entity before them.
        SubEntity,
        Object,
        /// For a name that is used and stands in no table: never written.
        StandIn,
        /// New, in no drawing yet.
        Detached,
    };

    CKvObjectSlot() = default;
    CKvObjectSlot(const CKvObjectSlot &) = delete;
    CKvObjectSlot &operator=(const CKvObjectSlot &) = delete;

    std::string_view bytes() const;
    const CKvDrawingFormat &format() const;
    CKvTagForm form() const;
    /// The object's own bytes, made from the slice at the first call; the caller changes them.
    std::string &ownBytes();
    /// The place of an entity's layer is known and nothing but the layer was changed.
    bool hasPlainLayer() const { return layerAt != 0 && !own; }
    OdDbObjectId id() { return OdDbObjectId(this); }

    /// Null while the object is in no drawing.
    CKvDrawingStore *store = nullptr;
    OdRxClass *rxClass = nullptr;
    /// Table of a record, block of an entity; null for other objects, which name their owner in
    /// 330.
    CKvObjectSlot *owner = nullptr;
    std::uint64_t handle = 0;
    /// Offsets in the file; equal for an object that the file does not have.
    std::size_t begin = 0;
    std::size_t end = 0;
    /// Made by bytes() too, for an entity that moved.
    mutable std::unique_ptr<std::string> own;
    /// Order of the objects without handle, and of the new ones.
    std::uint32_t serial = 0;
    std::uint16_t writers = 0;
    /// Where the name of an entity's layer stands in its slice; 0 when that is not known.
    std::uint16_t layerAt = 0;
    std::uint8_t layerSize = 0;
    Role role = Role::Object;
    bool isErased = false;
    bool isNew = false;
    /// Changed since it was opened.
    bool isModified = false;
    /// In the store's list of what saving has to look at.
    bool isTouched = false;
    /// Number of the name, among the store's, that stands in place of the layer's in the slice; 0
    /// for none. A layer with a million entities is merged without a copy of each.
    mutable std::uint16_t movedTo = 0;
};

/// An object that is in no drawing. Keeps the drawing open that its handles count in.
class CKvDetachedSlot : public CKvObjectSlot
{
public:
    OdRxObjectPtr origin;
};

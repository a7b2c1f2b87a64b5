// SPDX-License-Identifier: MIT
#include "pictureRecords.h"

#include "CKvEntityTags.h"
#include "recordNames.h"

#include <cmath>
#include <cstdlib>

namespace
{

constexpr int kByBlockIndex = 0;
constexpr int kByLayerIndex = 256;
constexpr int kWhite = 7;
constexpr int kFrozen = 1;
// Of a dash that carries a text (2) or a shape (4).
constexpr int kTextOrShape = 6;

CKvPictureColor colorOf(const CKvTag *index, const CKvTag *trueColor)
{
    if (trueColor) {
        return { CKvPictureColor::Kind::Rgb, std::uint32_t(trueColor->integer()) & 0xffffffU };
    }
    const int number = index ? int(index->integer()) : kByLayerIndex;
    if (number == kByLayerIndex || number > kByLayerIndex || number < -255) {
        return {};
    }
    if (number == kByBlockIndex) {
        return { CKvPictureColor::Kind::ByBlock, 0 };
    }
    return { CKvPictureColor::Kind::Index, std::uint32_t(std::abs(number)) };
}

} // namespace

CKvPictureColor entityColor(const CKvEntityTags &tags)
{
    return colorOf(tags.findCommon(62), tags.findCommon(420));
}

CKvPictureLayer layerRecord(const CKvObjectSlot &slot)
{
    const CKvEntityTags tags(slot);
    CKvPictureLayer layer;
    layer.name = recordName(slot);
    layer.color = colorOf(tags.find(62), tags.find(420));
    if (layer.color.kind != CKvPictureColor::Kind::Rgb
        && layer.color.kind != CKvPictureColor::Kind::Index) {
        layer.color = { CKvPictureColor::Kind::Index, kWhite };
    }
    layer.lineWeight = tags.integer(370, -3);
    layer.isOff = tags.integer(62, kWhite) < 0;
    layer.isFrozen = tags.hasFlag(70, kFrozen);
    layer.isZero = layer.name == QLatin1String("0");
    return layer;
}

CKvPictureLineStyle lineStyleRecord(const CKvObjectSlot &slot)
{
    const CKvEntityTags tags(slot);
    CKvPictureLineStyle style;
    style.name = recordName(slot);
    double length = 0;
    for (const CKvTag &tag : tags.tags()) {
        if (tag.code == 49) {
            style.dashes.push_back(CKvEntityTags::real(tag));
            length += std::abs(style.dashes.back());
        } else if (tag.code == 74 && (tag.integer() & kTextOrShape) != 0 && !style.dashes.empty()) {
            // The letters or the shape themselves are not drawn. Without this, a line of nothing
            // but shapes would not be seen at all.
            style.dashes.back() = std::abs(style.dashes.back());
        }
    }
    if (!(length > 0)) {
        style.dashes.clear();
    }
    return style;
}

// SPDX-License-Identifier: MIT
#include "OdDbLayerTableRecord.h"

#include "CKvDrawingStore.h"
#include "CKvObjectAccess.h"
#include "objectTags.h"
#include "recordNames.h"
#include "rxConstruction.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace
{

constexpr int kTrueColorVersion = 1018;
constexpr int kLineWeightVersion = 1015;
constexpr int kWhite = 7;

CKvTable *linetypesOf(const CKvObjectSlot &slot)
{
    return slot.store ? &slot.store->table(CKvTableKind::Linetype) : nullptr;
}

std::string colorNumber(const OdCmColor &color)
{
    return std::to_string(color.red() << 16 | color.green() << 8 | color.blue());
}

} // namespace

OdRxClass *OdDbLayerTableRecord::desc()
{
    static OdRxClass s_class(OdString("OdDbLayerTableRecord"),
                             OdDbSymbolTableRecord::desc(),
                             &constructRx<OdDbLayerTableRecord>,
                             OdString("LAYER"));
    return &s_class;
}

OdDbLayerTableRecordPtr OdDbLayerTableRecord::cast(const OdRxObject *object)
{
    return castRx<OdDbLayerTableRecord>(object);
}

OdDbLayerTableRecordPtr OdDbLayerTableRecord::createObject()
{
    OdDbLayerTableRecordPtr layer(new OdDbLayerTableRecord, kOdRxObjAttach);
    CKvObjectAccess::makeDetached(*layer, "LAYER");
    CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*layer);
    slot.rxClass = desc();
    const CKvTagStyle &style = slot.format().style;
    appendTag(*slot.own, style, 100, "AcDbSymbolTableRecord");
    appendTag(*slot.own, style, 100, "AcDbLayerTableRecord");
    appendTag(*slot.own, style, 2, "");
    appendTag(*slot.own, style, 70, "0");
    appendTag(*slot.own, style, 62, "7");
    appendTag(*slot.own, style, 6, "Continuous");
    return layer;
}

OdCmColor OdDbLayerTableRecord::color() const
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    const std::optional<CKvTag> index = findTag(slot, 62);
    const std::optional<CKvTag> trueColor = findTag(slot, 420);
    constexpr std::int64_t kMost = std::numeric_limits<int>::max();
    const int number =
        index ? int(std::abs(std::clamp<std::int64_t>(index->integer(), -kMost, kMost))) : kWhite;
    OdCmColor color = OdCmColor::byIndex(number);
    if (trueColor) {
        const auto rgb = std::uint32_t(trueColor->integer());
        color = OdCmColor::byColor(
            std::uint8_t(rgb >> 16), std::uint8_t(rgb >> 8), std::uint8_t(rgb), number);
    }
    if (const std::optional<CKvTag> book = findTag(slot, 430)) {
        color.setBookName(OdString(slot.format().codec.decode(book->value)));
    }
    return color;
}

void OdDbLayerTableRecord::setColor(const OdCmColor &color)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    const std::optional<CKvTag> index = findTag(slot, 62);
    const bool isOff = index && index->integer() < 0;
    const int number = isOff ? -color.colorIndex() : color.colorIndex();
    if (!index || index->integer() != number) {
        setTag(slot, 62, std::to_string(number), { 70, 2 });
    }
    // Older versions have no place for true colours.
    const bool keepsTrueColor = !slot.store || slot.format().version >= kTrueColorVersion;
    if (color.isByColor() && keepsTrueColor) {
        setTag(slot, 420, colorNumber(color), { 62 });
    } else {
        dropTags(slot, 420);
    }
    if (!color.bookName().isEmpty() && keepsTrueColor) {
        setTag(slot, 430, slot.format().codec.encode(color.bookName().toQString()), { 420, 62 });
    } else {
        dropTags(slot, 430);
    }
}

OdDb::LineWeight OdDbLayerTableRecord::lineWeight() const
{
    const std::optional<CKvTag> weight = findTag(*CKvObjectAccess::slotOf(*this), 370);
    return weight ? OdDb::LineWeight(weight->integer(OdDb::kLineWeightByDefault))
                  : OdDb::kLineWeightByDefault;
}

void OdDbLayerTableRecord::setLineWeight(OdDb::LineWeight lineWeight)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (this->lineWeight() == lineWeight
        || (slot.store && slot.format().version < kLineWeightVersion)) {
        return;
    }
    setTag(slot, 370, std::to_string(int(lineWeight)), { 290, 6, 420, 62 });
}

OdDbObjectId OdDbLayerTableRecord::linetypeObjectId() const
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    CKvTable *linetypes = linetypesOf(slot);
    if (!linetypes) {
        return OdDbObjectId();
    }
    const std::optional<CKvTag> name = findTag(slot, 6);
    return linetypes->findOrStandIn(name ? name->value : std::string_view("Continuous")).id();
}

void OdDbLayerTableRecord::setLinetypeObjectId(OdDbObjectId linetypeId)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (linetypeId.isNull() || linetypeObjectId() == linetypeId) {
        return;
    }
    const CKvObjectSlot &linetype = *linetypeId.slot();
    // Within one drawing the bytes themselves: the encoding may not know all of them.
    const std::string name = linetype.store == slot.store
        ? std::string(encodedRecordName(linetype))
        : slot.format().codec.encode(recordName(linetype));
    setTag(slot, 6, name, { 420, 62, 70 });
}

bool OdDbLayerTableRecord::isHidden() const
{
    return encodedRecordName(*CKvObjectAccess::slotOf(*this)).substr(0, 1) == "*";
}

// SPDX-License-Identifier: MIT
#include "OdDbDimStyleTableRecord.h"

#include "CKvDrawingStore.h"
#include "CKvObjectAccess.h"
#include "angles.h"
#include "dimStyleTags.h"
#include "dimensionPointers.h"
#include "extensionDictionary.h"
#include "makeRecord.h"
#include "nearestColorIndex.h"
#include "recordNames.h"
#include "rxConstruction.h"

#include <cmath>

namespace
{

/// R12 and older have no text style in a dimension style; it is Standard.
constexpr int kTextStyleVersion = 1012;

/// Without the noise of the conversion: 60 and not 59.99999999999999.
double degreesOf(double radians)
{
    constexpr double kDigits = 1e10;
    return std::round(radians / kRadiansPerDegree * kDigits) / kDigits;
}

std::int64_t indexOf(const OdCmColor &color)
{
    return color.isByColor() ? nearestColorIndex(color.red(), color.green(), color.blue())
                             : color.colorIndex();
}

/// The handle of a record of the same drawing; "0" for any other.
std::string handleOf(const CKvObjectSlot &style, CKvObjectSlot *pointed)
{
    if (!pointed || pointed->isErased || pointed->role != CKvObjectSlot::Role::Record
        || (style.store && pointed->store != style.store)) {
        return "0";
    }
    requireHandle(*pointed);
    return handleToText(pointed->handle);
}

} // namespace

OdRxClass *OdDbDimStyleTableRecord::desc()
{
    static OdRxClass s_class(OdString("OdDbDimStyleTableRecord"),
                             OdDbSymbolTableRecord::desc(),
                             &constructRx<OdDbDimStyleTableRecord>,
                             OdString("DIMSTYLE"));
    return &s_class;
}

OdDbDimStyleTableRecordPtr OdDbDimStyleTableRecord::cast(const OdRxObject *object)
{
    return castRx<OdDbDimStyleTableRecord>(object);
}

OdDbDimStyleTableRecordPtr OdDbDimStyleTableRecord::createObject()
{
    return makeRecord<OdDbDimStyleTableRecord>("DIMSTYLE", "AcDbDimStyleTableRecord");
}

std::int64_t OdDbDimStyleTableRecord::integer(OdDbDimVariable variable) const
{
    const CKvDimensionVariable &row = dimensionVariable(variable);
    const auto fallback = std::int64_t(row.defaultNumber);
    const std::optional<CKvDimStyleTag> found =
        findDimStyleTag(*CKvObjectAccess::slotOf(*this), row);
    return found ? found->tag.integer(fallback) : fallback;
}

OdDb::LineWeight OdDbDimStyleTableRecord::lineWeight(OdDbDimVariable variable) const
{
    return OdDb::LineWeight(integer(variable));
}

double OdDbDimStyleTableRecord::real(OdDbDimVariable variable) const
{
    const CKvDimensionVariable &row = dimensionVariable(variable);
    const std::optional<CKvDimStyleTag> found =
        findDimStyleTag(*CKvObjectAccess::slotOf(*this), row);
    const double number = found ? found->tag.real(row.defaultNumber) : row.defaultNumber;
    const bool isInDegrees =
        row.kind == CKvDimensionVariable::Kind::Angle && !(found && found->isExtended);
    return isInDegrees ? number * kRadiansPerDegree : number;
}

OdString OdDbDimStyleTableRecord::text(OdDbDimVariable variable) const
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    const std::optional<CKvDimStyleTag> found = findDimStyleTag(slot, dimensionVariable(variable));
    return found ? OdString(slot.format().codec.decode(found->tag.value)) : OdString();
}

OdCmColor OdDbDimStyleTableRecord::color(OdDbDimVariable variable) const
{
    const CKvDimensionVariable &row = dimensionVariable(variable);
    const std::optional<CKvDimStyleTag> found =
        findDimStyleTag(*CKvObjectAccess::slotOf(*this), row);
    if (found && found->isExtended) {
        return colorFromBytes(found->tag);
    }
    return OdCmColor::byIndex(int(found ? found->tag.integer() : std::int64_t(row.defaultNumber)));
}

OdDbHardPointerId OdDbDimStyleTableRecord::pointer(OdDbDimVariable variable) const
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    if (!slot.store) {
        return OdDbHardPointerId();
    }
    const CKvDimensionVariable &row = dimensionVariable(variable);
    const CKvTableKind kind = tableOf(row);
    if (kind == CKvTableKind::TextStyle && slot.format().version < kTextStyleVersion) {
        return slot.store->table(kind).findOrStandIn("Standard").id();
    }
    const std::optional<CKvDimStyleTag> found = findDimStyleTag(slot, row);
    if (!found) {
        return OdDbHardPointerId();
    }
    const bool isName = kind == CKvTableKind::Block && namesArrowBlocks(slot);
    return OdDbHardPointerId(isName ? findArrowBlock(*slot.store, found->tag.value)
                                    : findPointed(*slot.store, kind, found->tag.value));
}

void OdDbDimStyleTableRecord::setInteger(OdDbDimVariable variable, std::int64_t value)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (integer(variable) != value) {
        const std::string spelled = std::to_string(value);
        writeDimStyleTag(slot, dimensionVariable(variable), { spelled, spelled });
    }
}

void OdDbDimStyleTableRecord::setLineWeight(OdDbDimVariable variable, OdDb::LineWeight value)
{
    setInteger(variable, value);
}

void OdDbDimStyleTableRecord::setReal(OdDbDimVariable variable, double value)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (real(variable) == value) {
        return;
    }
    const CKvDimensionVariable &row = dimensionVariable(variable);
    const bool isAngle = row.kind == CKvDimensionVariable::Kind::Angle;
    writeDimStyleTag(
        slot, row, { spelledReal(isAngle ? degreesOf(value) : value), spelledReal(value) });
}

void OdDbDimStyleTableRecord::setText(OdDbDimVariable variable, const OdString &value)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (text(variable) != value) {
        const std::string spelled = slot.format().codec.encode(value.toQString());
        writeDimStyleTag(slot, dimensionVariable(variable), { spelled, spelled });
    }
}

void OdDbDimStyleTableRecord::setColor(OdDbDimVariable variable, const OdCmColor &value)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (color(variable) != value) {
        writeDimStyleTag(slot,
                         dimensionVariable(variable),
                         { std::to_string(indexOf(value)), bytesOfColor(value) });
    }
}

void OdDbDimStyleTableRecord::setPointer(OdDbDimVariable variable, OdDbHardPointerId value)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    const CKvDimensionVariable &row = dimensionVariable(variable);
    CKvObjectSlot *pointed = value.slot();
    const bool isOwn = pointed && pointed->store == slot.store && !pointed->isErased;
    if (slot.store && pointer(variable) == (isOwn ? value : OdDbHardPointerId())) {
        return;
    }
    if (tableOf(row) == CKvTableKind::Block && namesArrowBlocks(slot)) {
        writeDimStyleTag(
            slot, row, { isOwn ? std::string(encodedRecordName(*pointed)) : std::string(), {} });
    } else if (!slot.store || slot.store->hasHandles()) {
        const std::string handle = handleOf(slot, pointed);
        writeDimStyleTag(slot, row, { handle, handle });
    }
}

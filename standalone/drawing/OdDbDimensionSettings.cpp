// SPDX-License-Identifier: MIT
#include "OdDbDimensionSettings.h"

#include "CKvDrawingStore.h"
#include "OdDbDatabase.h"
#include "angles.h"
#include "dimensionPointers.h"
#include "dimensionVariables.h"
#include "nearestColorIndex.h"
#include "recordNames.h"

namespace
{

using Kind = CKvDimensionVariable::Kind;

constexpr std::string_view kDimStyle = "$DIMSTYLE";

CKvDrawingStore &storeOf(const OdDbDimensionSettings &settings)
{
    return static_cast<const OdDbDatabase &>(settings).store();
}

std::string nameInHeader(const CKvDimensionVariable &row)
{
    return std::string("$") + row.name;
}

std::optional<CKvTag> findVariable(CKvDrawingStore &store, const CKvDimensionVariable &row)
{
    return store.header().find(nameInHeader(row));
}

/// The group behind a variable's name.
int headerGroup(Kind kind)
{
    switch (kind) {
    case Kind::Real:
    case Kind::Angle:
        return 40;
    case Kind::Text:
    case Kind::Block:
        return 1;
    case Kind::TextStyle:
        return 7;
    case Kind::LineStyle:
        return 6;
    case Kind::Integer:
    case Kind::Flag:
    case Kind::Color:
    case Kind::LineWeight:
        break;
    }
    return 70;
}

void writeVariable(CKvDrawingStore &store,
                   const CKvDimensionVariable &row,
                   const std::string &value)
{
    const bool isKnown = store.format().version >= row.since;
    store.header().set(nameInHeader(row), value, isKnown ? headerGroup(row.kind) : 0);
}

void requireInRange(const CKvDimensionVariable &row, double value)
{
    // So that what is no number is refused too.
    if (!(value >= row.range.least && value <= row.range.most)) {
        throw OdError_InvalidSysvarValue(row.name);
    }
}

/// @throws OdError_InvalidSysvarValue for what is no record of that table of the drawing.
void requireRecord(CKvDrawingStore &store,
                   CKvTableKind kind,
                   const CKvObjectSlot *record,
                   const char *variable)
{
    if (!record || record->store != &store || record->isErased
        || record->owner != &store.table(kind).head()) {
        throw OdError_InvalidSysvarValue(variable);
    }
}

} // namespace

OdDbObjectId OdDbDimensionSettings::getDIMSTYLE() const
{
    CKvDrawingStore &store = storeOf(*this);
    const std::optional<CKvTag> name = store.header().find(kDimStyle);
    return store.table(CKvTableKind::DimStyle)
        .findOrStandIn(name ? name->value : std::string_view("Standard"))
        .id();
}

void OdDbDimensionSettings::setDIMSTYLE(OdDbObjectId styleId)
{
    CKvDrawingStore &store = storeOf(*this);
    requireRecord(store, CKvTableKind::DimStyle, styleId.slot(), "DIMSTYLE");
    if (getDIMSTYLE() != styleId) {
        store.header().set(kDimStyle, encodedRecordName(*styleId.slot()), 2);
    }
}

std::int64_t OdDbDimensionSettings::integer(OdDbDimVariable variable) const
{
    const CKvDimensionVariable &row = dimensionVariable(variable);
    const auto fallback = std::int64_t(row.defaultNumber);
    const std::optional<CKvTag> found = findVariable(storeOf(*this), row);
    return found ? found->integer(fallback) : fallback;
}

OdDb::LineWeight OdDbDimensionSettings::lineWeight(OdDbDimVariable variable) const
{
    return OdDb::LineWeight(integer(variable));
}

double OdDbDimensionSettings::real(OdDbDimVariable variable) const
{
    const CKvDimensionVariable &row = dimensionVariable(variable);
    const double fallback =
        row.kind == Kind::Angle ? row.defaultNumber * kRadiansPerDegree : row.defaultNumber;
    const std::optional<CKvTag> found = findVariable(storeOf(*this), row);
    return found ? found->real(fallback) : fallback;
}

OdString OdDbDimensionSettings::text(OdDbDimVariable variable) const
{
    CKvDrawingStore &store = storeOf(*this);
    const std::optional<CKvTag> found = findVariable(store, dimensionVariable(variable));
    return found ? OdString(store.format().codec.decode(found->value)) : OdString();
}

OdCmColor OdDbDimensionSettings::color(OdDbDimVariable variable) const
{
    return OdCmColor::byIndex(int(integer(variable)));
}

OdDbHardPointerId OdDbDimensionSettings::pointer(OdDbDimVariable variable) const
{
    const CKvDimensionVariable &row = dimensionVariable(variable);
    CKvDrawingStore &store = storeOf(*this);
    const std::optional<CKvTag> found = findVariable(store, row);
    if (!found || found->value.empty()) {
        return OdDbHardPointerId();
    }
    return OdDbHardPointerId(row.kind == Kind::Block
                                 ? findArrowBlock(store, found->value)
                                 : &store.table(tableOf(row)).findOrStandIn(found->value));
}

void OdDbDimensionSettings::setInteger(OdDbDimVariable variable, std::int64_t value)
{
    const CKvDimensionVariable &row = dimensionVariable(variable);
    requireInRange(row, double(value));
    if (integer(variable) != value) {
        writeVariable(storeOf(*this), row, std::to_string(value));
    }
}

void OdDbDimensionSettings::setLineWeight(OdDbDimVariable variable, OdDb::LineWeight value)
{
    setInteger(variable, value);
}

void OdDbDimensionSettings::setReal(OdDbDimVariable variable, double value)
{
    const CKvDimensionVariable &row = dimensionVariable(variable);
    requireInRange(row, value);
    if (real(variable) != value) {
        writeVariable(storeOf(*this), row, spelledReal(value));
    }
}

void OdDbDimensionSettings::setText(OdDbDimVariable variable, const OdString &value)
{
    CKvDrawingStore &store = storeOf(*this);
    if (text(variable) != value) {
        writeVariable(
            store, dimensionVariable(variable), store.format().codec.encode(value.toQString()));
    }
}

void OdDbDimensionSettings::setColor(OdDbDimVariable variable, const OdCmColor &value)
{
    setInteger(variable,
               value.isByColor() ? nearestColorIndex(value.red(), value.green(), value.blue())
                                 : value.colorIndex());
}

void OdDbDimensionSettings::setPointer(OdDbDimVariable variable, OdDbHardPointerId value)
{
    const CKvDimensionVariable &row = dimensionVariable(variable);
    CKvDrawingStore &store = storeOf(*this);
    // A text style there must be; arrows and line styles can be left to their defaults.
    if (!value.isNull() || row.kind == Kind::TextStyle) {
        requireRecord(store, tableOf(row), value.slot(), row.name);
    }
    // A name that leads nowhere reads as null and is cleared all the same.
    const std::optional<CKvTag> found = findVariable(store, row);
    const bool leadsNowhere = value.isNull() && found && !found->value.empty();
    if (pointer(variable) != value || leadsNowhere) {
        writeVariable(store,
                      row,
                      value.isNull() ? std::string()
                                     : std::string(encodedRecordName(*value.slot())));
    }
}

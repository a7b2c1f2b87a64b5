// SPDX-License-Identifier: MIT
#include "CKvDrawingStore.h"
#include "CKvObjectAccess.h"
#include "OdDbDimension.h"
#include "OdDbLeader.h"
#include "objectTags.h"
#include "recordNames.h"
#include "rxConstruction.h"

namespace
{

constexpr int kStyleGroup = 3;

OdDbObjectId styleOf(const OdDbEntity &entity)
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(entity);
    const std::optional<CKvTag> name = findTag(slot, kStyleGroup);
    return slot.store->table(CKvTableKind::DimStyle)
        .findOrStandIn(name ? name->value : std::string_view("Standard"))
        .id();
}

/// @param anchors groups behind which the style stands in an entity that leaves it out.
void setStyleOf(OdDbEntity &entity, OdDbObjectId styleId, std::initializer_list<int> anchors)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(entity);
    if (styleId.isNull() || styleId.database() != slot.store->database) {
        throw OdError(OdResult::kInvalidInput, "The dimension style is not one of this drawing.");
    }
    setTag(slot, kStyleGroup, encodedRecordName(*styleId.slot()), anchors);
}

} // namespace

OdRxClass *OdDbDimension::desc()
{
    static OdRxClass s_class(OdString("OdDbDimension"),
                             OdDbEntity::desc(),
                             &constructRx<OdDbDimension>,
                             OdString("DIMENSION"));
    return &s_class;
}

OdDbDimensionPtr OdDbDimension::cast(const OdRxObject *object)
{
    return castRx<OdDbDimension>(object);
}

OdDbObjectId OdDbDimension::dimensionStyle() const
{
    return styleOf(*this);
}

void OdDbDimension::setDimensionStyle(OdDbObjectId styleId)
{
    setStyleOf(*this, styleId, { 70, 100, 8 });
}

OdRxClass *OdDbLeader::desc()
{
    static OdRxClass s_class(
        OdString("OdDbLeader"), OdDbEntity::desc(), &constructRx<OdDbLeader>, OdString("LEADER"));
    return &s_class;
}

OdDbLeaderPtr OdDbLeader::cast(const OdRxObject *object)
{
    return castRx<OdDbLeader>(object);
}

OdDbObjectId OdDbLeader::dimensionStyle() const
{
    return styleOf(*this);
}

void OdDbLeader::setDimensionStyle(OdDbObjectId styleId)
{
    setStyleOf(*this, styleId, { 100, 8 });
}

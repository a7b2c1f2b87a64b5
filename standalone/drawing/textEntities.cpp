// SPDX-License-Identifier: MIT
#include "CKvDrawingStore.h"
#include "CKvObjectAccess.h"
#include "CKvTagReader.h"
#include "OdDbArcAlignedText.h"
#include "OdDbAttribute.h"
#include "OdDbAttributeDefinition.h"
#include "OdDbMText.h"
#include "OdDbText.h"
#include "RText.h"
#include "objectTags.h"
#include "recordNames.h"
#include "rxConstruction.h"
#include "textUses.h"

namespace
{

/// Height, scale, angle: what stands before the style of a text of one line.
constexpr std::initializer_list<int> kBehindTextOfOneLine = { 51, 41, 50, 1, 40 };
constexpr std::initializer_list<int> kBehindText = { 1, 40 };

/// Group 7 of the text of several lines that an attribute holds, behind 101.
std::optional<CKvTag> embeddedStyle(const CKvObjectSlot &slot)
{
    CKvTagReader reader(slot.bytes(), slot.form());
    bool isEmbedded = false;
    std::optional<CKvTag> found;
    while (reader.next() && reader.tag().code != 1001) {
        isEmbedded = isEmbedded || reader.tag().code == 101;
        if (isEmbedded && reader.tag().code == 7) {
            found = reader.tag();
        }
    }
    return found;
}

} // namespace

CKvObjectSlot &textStyleOf(const CKvObjectSlot &entity)
{
    const std::optional<CKvTag> name = findTag(entity, 7);
    return entity.store->table(CKvTableKind::TextStyle)
        .findOrStandIn(name ? name->value : std::string_view("Standard"));
}

void requireTextStyleOf(const CKvObjectSlot &entity, OdDbObjectId styleId)
{
    if (styleId.isNull() || styleId.slot()->store != entity.store) {
        throw OdError(OdResult::kInvalidInput, "The text style is not one of this drawing.");
    }
}

void setTextStyleOf(CKvObjectSlot &entity, OdDbObjectId styleId, std::initializer_list<int> anchors)
{
    requireTextStyleOf(entity, styleId);
    if (&textStyleOf(entity) != styleId.slot()) {
        setTag(entity, 7, std::string(encodedRecordName(*styleId.slot())), anchors);
    }
}

OdRxClass *OdDbText::desc()
{
    static OdRxClass s_class(
        OdString("OdDbText"), OdDbEntity::desc(), &constructRx<OdDbText>, OdString("TEXT"));
    return &s_class;
}

OdDbTextPtr OdDbText::cast(const OdRxObject *object)
{
    return castRx<OdDbText>(object);
}

OdDbObjectId OdDbText::textStyle() const
{
    return textStyleOf(*CKvObjectAccess::slotOf(*this)).id();
}

void OdDbText::setTextStyle(OdDbObjectId styleId)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    const CKvObjectSlot *before = &textStyleOf(slot);
    setTextStyleOf(slot, styleId, kBehindTextOfOneLine);
    // Looked for only now, since the change above moved what stands behind it.
    const std::optional<CKvTag> embedded = embeddedStyle(slot);
    CKvTable &styles = slot.store->table(CKvTableKind::TextStyle);
    if (embedded && &styles.findOrStandIn(embedded->value) == before) {
        replaceTagValue(slot.ownBytes(), *embedded, encodedRecordName(*styleId.slot()));
    }
}

OdRxClass *OdDbAttribute::desc()
{
    static OdRxClass s_class(OdString("OdDbAttribute"),
                             OdDbText::desc(),
                             &constructRx<OdDbAttribute>,
                             OdString("ATTRIB"));
    return &s_class;
}

OdDbAttributePtr OdDbAttribute::cast(const OdRxObject *object)
{
    return castRx<OdDbAttribute>(object);
}

OdRxClass *OdDbAttributeDefinition::desc()
{
    static OdRxClass s_class(OdString("OdDbAttributeDefinition"),
                             OdDbText::desc(),
                             &constructRx<OdDbAttributeDefinition>,
                             OdString("ATTDEF"));
    return &s_class;
}

OdDbAttributeDefinitionPtr OdDbAttributeDefinition::cast(const OdRxObject *object)
{
    return castRx<OdDbAttributeDefinition>(object);
}

OdRxClass *OdDbMText::desc()
{
    static OdRxClass s_class(
        OdString("OdDbMText"), OdDbEntity::desc(), &constructRx<OdDbMText>, OdString("MTEXT"));
    return &s_class;
}

OdDbMTextPtr OdDbMText::cast(const OdRxObject *object)
{
    return castRx<OdDbMText>(object);
}

OdDbObjectId OdDbMText::textStyle() const
{
    return textStyleOf(*CKvObjectAccess::slotOf(*this)).id();
}

void OdDbMText::setTextStyle(OdDbObjectId styleId)
{
    setTextStyleOf(CKvObjectAccess::beginChange(*this), styleId, kBehindText);
}

OdRxClass *OdDbArcAlignedText::desc()
{
    static OdRxClass s_class(OdString("OdDbArcAlignedText"),
                             OdDbEntity::desc(),
                             &constructRx<OdDbArcAlignedText>,
                             OdString("ARCALIGNEDTEXT"));
    return &s_class;
}

OdDbArcAlignedTextPtr OdDbArcAlignedText::cast(const OdRxObject *object)
{
    return castRx<OdDbArcAlignedText>(object);
}

OdDbObjectId OdDbArcAlignedText::textStyle() const
{
    return textStyleOf(*CKvObjectAccess::slotOf(*this)).id();
}

void OdDbArcAlignedText::setTextStyle(OdDbObjectId styleId)
{
    setTextStyleOf(CKvObjectAccess::beginChange(*this), styleId, kBehindText);
}

OdRxClass *RText::desc()
{
    static OdRxClass s_class(
        OdString("RText"), OdDbEntity::desc(), &constructRx<RText>, OdString("RTEXT"));
    return &s_class;
}

RTextPtr RText::cast(const OdRxObject *object)
{
    return castRx<RText>(object);
}

OdDbObjectId RText::textStyleId() const
{
    return textStyleOf(*CKvObjectAccess::slotOf(*this)).id();
}

void RText::setTextStyle(OdDbObjectId styleId)
{
    setTextStyleOf(CKvObjectAccess::beginChange(*this), styleId, kBehindText);
}

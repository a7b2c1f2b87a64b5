// SPDX-License-Identifier: MIT
#include "OdDbLinetypeTableRecord.h"

#include "CKvDrawingStore.h"
#include "makeRecord.h"
#include "objectTags.h"
#include "rxConstruction.h"

namespace
{

constexpr int kIsText = 2;
constexpr int kIsShape = 4;

/// What stands behind one group 49, up to the next.
struct CKvDashElement {
    double length = 0;
    int flags = 0;
    int shapeNumber = 0;
    std::uint64_t style = 0;
    std::string_view text;
};

std::vector<CKvDashElement> elementsOf(const CKvObjectSlot &slot)
{
    std::vector<CKvDashElement> elements;
    for (const CKvTag &tag : ownTags(slot)) {
        if (tag.code == 49) {
            elements.emplace_back();
            elements.back().length = tag.real();
        }
        if (elements.empty()) {
            continue;
        }
        CKvDashElement &element = elements.back();
        if (tag.code == 74) {
            element.flags = int(tag.integer());
        } else if (tag.code == 75) {
            element.shapeNumber = int(tag.integer());
        } else if (tag.code == 340) {
            element.style = tag.handle();
        } else if (tag.code == 9) {
            element.text = tag.value;
        }
    }
    return elements;
}

CKvDashElement elementAt(const CKvObjectSlot &slot, int index)
{
    const std::vector<CKvDashElement> elements = elementsOf(slot);
    if (index < 0 || std::size_t(index) >= elements.size()) {
        throw OdError_InvalidIndex();
    }
    return elements[std::size_t(index)];
}

} // namespace

OdRxClass *OdDbLinetypeTableRecord::desc()
{
    static OdRxClass s_class(OdString("OdDbLinetypeTableRecord"),
                             OdDbSymbolTableRecord::desc(),
                             &constructRx<OdDbLinetypeTableRecord>,
                             OdString("LTYPE"));
    return &s_class;
}

OdDbLinetypeTableRecordPtr OdDbLinetypeTableRecord::cast(const OdRxObject *object)
{
    return castRx<OdDbLinetypeTableRecord>(object);
}

OdDbLinetypeTableRecordPtr OdDbLinetypeTableRecord::createObject()
{
    return makeRecord<OdDbLinetypeTableRecord>("LTYPE", "AcDbLinetypeTableRecord");
}

int OdDbLinetypeTableRecord::numDashes() const
{
    const std::optional<CKvTag> count = findTag(*CKvObjectAccess::slotOf(*this), 73);
    return count ? int(count->integer()) : 0;
}

double OdDbLinetypeTableRecord::patternLength() const
{
    const std::optional<CKvTag> length = findTag(*CKvObjectAccess::slotOf(*this), 40);
    return length ? length->real() : 0;
}

double OdDbLinetypeTableRecord::dashLengthAt(int index) const
{
    return elementAt(*CKvObjectAccess::slotOf(*this), index).length;
}

OdDbObjectId OdDbLinetypeTableRecord::shapeStyleAt(int index) const
{
    CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    const CKvDashElement element = elementAt(slot, index);
    CKvObjectSlot *style =
        slot.store && element.style != 0 ? slot.store->findRecordByHandle(element.style) : nullptr;
    const bool isStyle =
        style && !style->isErased && slot.store->isRecordOf(*style, CKvTableKind::TextStyle);
    return isStyle ? style->id() : OdDbObjectId();
}

int OdDbLinetypeTableRecord::shapeNumberAt(int index) const
{
    const CKvDashElement element = elementAt(*CKvObjectAccess::slotOf(*this), index);
    return (element.flags & kIsShape) != 0 ? element.shapeNumber : 0;
}

OdString OdDbLinetypeTableRecord::textAt(int index) const
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    const CKvDashElement element = elementAt(slot, index);
    return (element.flags & kIsText) != 0 ? OdString(slot.format().codec.decode(element.text))
                                          : OdString();
}

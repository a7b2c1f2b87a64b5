// SPDX-License-Identifier: MIT
#include "lineStyleDescription.h"

#include "CKvDrawingFormat.h"
#include "CKvObjectAccess.h"
#include "OdDbLinetypeTableRecord.h"
#include "objectTags.h"

QString lineStyleDescription(const OdDbLinetypeTableRecord &style)
{
    const CKvObjectSlot &slot = *style.objectId().slot();
    const std::optional<CKvTag> tag = findTag(slot, 3);
    return tag ? slot.format().codec.decode(tag->value) : QString();
}

void setLineStyleDescription(OdDbLinetypeTableRecord &style, const QString &description)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(style);
    setTag(slot, 3, slot.format().codec.encode(description), { 70, 2 });
}

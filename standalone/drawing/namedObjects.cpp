// SPDX-License-Identifier: MIT
#include "CKvDrawingFormat.h"
#include "CKvObjectAccess.h"
#include "OdDbMaterial.h"
#include "OdDbMlineStyle.h"
#include "OdDbPlaceHolder.h"
#include "objectTags.h"
#include "rxConstruction.h"

namespace
{

OdString textOf(const OdDbObject &object, int code)
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(object);
    const std::optional<CKvTag> tag = findFirstTag(slot, code);
    return tag ? OdString(slot.format().codec.decode(tag->value)) : OdString();
}

} // namespace

OdRxClass *OdDbMlineStyle::desc()
{
    static OdRxClass s_class(OdString("OdDbMlineStyle"),
                             OdDbObject::desc(),
                             &constructRx<OdDbMlineStyle>,
                             OdString("MLINESTYLE"));
    return &s_class;
}

OdDbMlineStylePtr OdDbMlineStyle::cast(const OdRxObject *object)
{
    return castRx<OdDbMlineStyle>(object);
}

OdString OdDbMlineStyle::name() const
{
    return textOf(*this, 2);
}

OdRxClass *OdDbMaterial::desc()
{
    static OdRxClass s_class(OdString("OdDbMaterial"),
                             OdDbObject::desc(),
                             &constructRx<OdDbMaterial>,
                             OdString("MATERIAL"));
    return &s_class;
}

OdDbMaterialPtr OdDbMaterial::cast(const OdRxObject *object)
{
    return castRx<OdDbMaterial>(object);
}

OdString OdDbMaterial::name() const
{
    return textOf(*this, 1);
}

OdRxClass *OdDbPlaceHolder::desc()
{
    static OdRxClass s_class(OdString("OdDbPlaceHolder"),
                             OdDbObject::desc(),
                             &constructRx<OdDbPlaceHolder>,
                             OdString("ACDBPLACEHOLDER"));
    return &s_class;
}

OdDbPlaceHolderPtr OdDbPlaceHolder::cast(const OdRxObject *object)
{
    return castRx<OdDbPlaceHolder>(object);
}

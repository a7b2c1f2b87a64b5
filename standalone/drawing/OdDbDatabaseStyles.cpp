// SPDX-License-Identifier: MIT
#include "CKvDrawingStore.h"
#include "OdDbDatabase.h"
#include "recordNames.h"

namespace
{

OdDbObjectId recordOrStandIn(CKvDrawingStore &store, CKvTableKind kind, std::string_view name)
{
    return store.table(kind).findOrStandIn(name).id();
}

OdDbObjectId currentRecord(CKvDrawingStore &store,
                           std::string_view variable,
                           CKvTableKind kind,
                           std::string_view fallback)
{
    const std::optional<CKvTag> name = store.header().find(variable);
    return recordOrStandIn(store, kind, name ? name->value : fallback);
}

/// Line styles stand in group 6 of the header, text styles in 7.
void setCurrentRecord(CKvDrawingStore &store, const char *variable, int code, OdDbObjectId id)
{
    if (id.isNull() || id.slot()->store != &store) {
        throw OdError_InvalidSysvarValue(variable);
    }
    const std::string name(encodedRecordName(*id.slot()));
    store.header().set(std::string("$") + variable, name, code);
}

} // namespace

OdDbObjectId OdDbDatabase::getLinetypeByLayerId() const
{
    return recordOrStandIn(*m_store, CKvTableKind::Linetype, "ByLayer");
}

OdDbObjectId OdDbDatabase::getLinetypeByBlockId() const
{
    return recordOrStandIn(*m_store, CKvTableKind::Linetype, "ByBlock");
}

OdDbObjectId OdDbDatabase::getLinetypeContinuousId() const
{
    return recordOrStandIn(*m_store, CKvTableKind::Linetype, "Continuous");
}

OdDbObjectId OdDbDatabase::getCELTYPE() const
{
    return currentRecord(*m_store, "$CELTYPE", CKvTableKind::Linetype, "ByLayer");
}

void OdDbDatabase::setCELTYPE(OdDbObjectId linetypeId)
{
    setCurrentRecord(*m_store, "CELTYPE", 6, linetypeId);
}

OdDbObjectId OdDbDatabase::getTEXTSTYLE() const
{
    return currentRecord(*m_store, "$TEXTSTYLE", CKvTableKind::TextStyle, "Standard");
}

void OdDbDatabase::setTEXTSTYLE(OdDbObjectId styleId)
{
    setCurrentRecord(*m_store, "TEXTSTYLE", 7, styleId);
}

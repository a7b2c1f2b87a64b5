// SPDX-License-Identifier: MIT
#include "OdDbIdMapping.h"

#include "rxConstruction.h"

OdRxClass *OdDbIdMapping::desc()
{
    static OdRxClass s_class(
        OdString("OdDbIdMapping"), OdRxObject::desc(), &constructRx<OdDbIdMapping>, OdString());
    return &s_class;
}

OdRxClass *OdDbIdMapping::isA() const
{
    return desc();
}

OdDbIdMappingPtr OdDbIdMapping::createObject()
{
    return OdDbIdMappingPtr(new OdDbIdMapping, kOdRxObjAttach);
}

bool OdDbIdMapping::compute(OdDbObjectId source, OdDbObjectId &destination) const
{
    const auto found = m_pairs.find(source);
    if (found == m_pairs.end()) {
        return false;
    }
    destination = found->second;
    return true;
}

// SPDX-License-Identifier: MIT
#include "CKvStdsFix.h"

#include "OdRxClass.h"

namespace
{

OdRxClass *s_class = nullptr;

OdRxObjectPtr newFix()
{
    return OdRxObjectPtr(new CKvStdsFix, kOdRxObjAttach);
}

} // namespace

OdRxClass *CKvStdsFix::desc()
{
    return s_class;
}

void CKvStdsFix::rxInit()
{
    s_class = newOdRxClass(OdString("CKvStdsFix"),
                           OdRxObject::desc(),
                           &newFix,
                           0,
                           0,
                           0,
                           OdString::kEmpty,
                           OdString::kEmpty,
                           nullptr,
                           0);
}

void CKvStdsFix::rxUninit()
{
    deleteOdRxClass(s_class);
    s_class = nullptr;
}

OdRxClass *CKvStdsFix::isA() const
{
    return s_class ? s_class : OdRxObject::isA();
}

CKvStdsFixPtr CKvStdsFix::createObject()
{
    if (!s_class) {
        throw OdError(OdResult::kClassNotRegistered, "The class CKvStdsFix is not registered.");
    }
    return CKvStdsFixPtr(new CKvStdsFix, kOdRxObjAttach);
}

void CKvStdsFix::setName(CKvString name)
{
    m_name = std::move(name);
}

CKvString CKvStdsFix::name() const
{
    return m_name;
}

void CKvStdsFix::setObjectId(OdDbObjectId id)
{
    m_objectId = id;
}

OdDbObjectId CKvStdsFix::objectId() const
{
    return m_objectId;
}

void CKvStdsFix::setObjectName(CKvString name)
{
    m_objectName = std::move(name);
}

CKvString CKvStdsFix::objectName() const
{
    return m_objectName;
}

std::int32_t CKvStdsFix::propertyCount() const
{
    return std::int32_t(m_properties.size());
}

OdResBufPtr CKvStdsFix::property(CKvString name) const
{
    const auto found = m_properties.find(name);
    return found == m_properties.end() ? OdResBufPtr() : found->second;
}

void CKvStdsFix::addProperty(CKvString name, OdResBufPtr value)
{
    m_properties[std::move(name)] = std::move(value);
}

void CKvStdsFix::setStandardsFile(CKvString path)
{
    m_standardsFile = std::move(path);
}

CKvString CKvStdsFix::standardsFile() const
{
    return m_standardsFile;
}

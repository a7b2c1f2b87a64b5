// SPDX-License-Identifier: MIT
#include "CKvStdsError.h"

#include "OdRxClass.h"

namespace
{

OdRxClass *s_class = nullptr;

OdRxObjectPtr newError()
{
    return OdRxObjectPtr(new CKvStdsError, kOdRxObjAttach);
}

} // namespace

OdRxClass *CKvStdsError::desc()
{
    return s_class;
}

void CKvStdsError::rxInit()
{
    s_class = newOdRxClass(OdString("CKvStdsError"),
                           OdRxObject::desc(),
                           &newError,
                           0,
                           0,
                           0,
                           OdString::kEmpty,
                           OdString::kEmpty,
                           nullptr,
                           0);
}

void CKvStdsError::rxUninit()
{
    deleteOdRxClass(s_class);
    s_class = nullptr;
}

OdRxClass *CKvStdsError::isA() const
{
    return s_class ? s_class : OdRxObject::isA();
}

CKvStdsErrorPtr CKvStdsError::createObject()
{
    if (!s_class) {
        throw OdError(OdResult::kClassNotRegistered, "The class CKvStdsError is not registered.");
    }
    return CKvStdsErrorPtr(new CKvStdsError, kOdRxObjAttach);
}

void CKvStdsError::setObjectId(OdDbObjectId id)
{
    m_objectId = id;
}

OdDbObjectId CKvStdsError::objectId() const
{
    return m_objectId;
}

void CKvStdsError::setObjectType(CKvString type)
{
    m_objectType = std::move(type);
}

CKvString CKvStdsError::objectType() const
{
    return m_objectType;
}

void CKvStdsError::setMessage(CKvString message)
{
    m_message = std::move(message);
}

CKvString CKvStdsError::message() const
{
    return m_message;
}

void CKvStdsError::setObjectName(CKvString name)
{
    m_objectName = std::move(name);
}

CKvString CKvStdsError::objectName() const
{
    return m_objectName;
}

void CKvStdsError::setPlugin(CKvStdsPluginsPtr plugin)
{
    m_plugin = std::move(plugin);
}

CKvStdsPluginsPtr CKvStdsError::plugin() const
{
    return m_plugin;
}

std::int32_t CKvStdsError::propertyCount() const
{
    return std::int32_t(m_properties.size());
}

OdResBufPtr CKvStdsError::property(CKvString name) const
{
    const auto found = m_properties.find(name);
    return found == m_properties.end() ? OdResBufPtr() : found->second;
}

void CKvStdsError::addProperty(CKvString name, OdResBufPtr value)
{
    m_properties[std::move(name)] = std::move(value);
}

void CKvStdsError::clear()
{
    m_properties.clear();
}

void CKvStdsError::ignoreState(bool &isIgnored, CKvString &ignoredBy) const
{
    isIgnored = m_isIgnored;
    ignoredBy = m_ignoredBy;
}

void CKvStdsError::setIgnoreState(bool isIgnored, CKvString ignoredBy)
{
    m_isIgnored = isIgnored;
    m_ignoredBy = std::move(ignoredBy);
}

std::map<CKvString, OdResBufPtr> CKvStdsError::properties() const
{
    return m_properties;
}

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsPlugins.h"
#include "CKvString.h"
#include "OdDbObjectId.h"
#include "OdResBuf.h"

#include <cstdint>
#include <map>

/// One violation: which object, what is wrong in words, and the object's values when it was
/// checked.
class CKvStdsError : public OdRxObject
{
public:
    static OdRxClass *desc();
    static void rxInit();
    static void rxUninit();
    OdRxClass *isA() const override;
    /// @throws OdError 255 when the class is not registered.
    static CKvStdsErrorPtr createObject();

    virtual void setObjectId(OdDbObjectId id);
    virtual OdDbObjectId objectId() const;
    virtual void setObjectType(CKvString type);
    virtual CKvString objectType() const;
    virtual void setMessage(CKvString message);
    /// The finished sentence; it also tells the kind of the violation.
    virtual CKvString message() const;
    virtual void setObjectName(CKvString name);
    virtual CKvString objectName() const;
    virtual void setPlugin(CKvStdsPluginsPtr plugin);
    virtual CKvStdsPluginsPtr plugin() const;
    virtual std::int32_t propertyCount() const;
    /// Null when there is no such property.
    virtual OdResBufPtr property(CKvString name) const;
    /// Keeps the buffer itself.
    virtual void addProperty(CKvString name, OdResBufPtr value);
    /// Drops the properties.
    virtual void clear();
    virtual void ignoreState(bool &isIgnored, CKvString &ignoredBy) const;
    virtual void setIgnoreState(bool isIgnored, CKvString ignoredBy);
    /// A copy of the map, sorted by name; the buffers are shared.
    virtual std::map<CKvString, OdResBufPtr> properties() const;

private:
    OdDbObjectId m_objectId;
    CKvString m_objectType;
    CKvString m_message;
    CKvString m_objectName;
    CKvStdsPluginsPtr m_plugin;
    std::map<CKvString, OdResBufPtr> m_properties;
    bool m_isIgnored = false;
    CKvString m_ignoredBy;
};

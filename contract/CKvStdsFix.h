// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsPlugins.h"
#include "CKvString.h"
#include "OdDbObjectId.h"
#include "OdResBuf.h"

#include <cstdint>
#include <map>

/// One candidate repair: a record of a standards file with its values. Shared by all violations
/// that offer the record, so never changed once it was made.
class CKvStdsFix : public OdRxObject
{
public:
    static OdRxClass *desc();
    static void rxInit();
    static void rxUninit();
    OdRxClass *isA() const override;
    /// @throws OdError 255 when the class is not registered.
    static CKvStdsFixPtr createObject();

    virtual void setName(CKvString name);
    virtual CKvString name() const;
    virtual void setObjectId(OdDbObjectId id);
    virtual OdDbObjectId objectId() const;
    virtual void setObjectName(CKvString name);
    virtual CKvString objectName() const;
    virtual std::int32_t propertyCount() const;
    /// Null when there is no such property.
    virtual OdResBufPtr property(CKvString name) const;
    /// Keeps the buffer itself.
    virtual void addProperty(CKvString name, OdResBufPtr value);
    /// Full path of the file that holds the record.
    virtual void setStandardsFile(CKvString path);
    virtual CKvString standardsFile() const;

private:
    CKvString m_name;
    CKvString m_objectName;
    OdDbObjectId m_objectId;
    std::map<CKvString, OdResBufPtr> m_properties;
    CKvString m_standardsFile;
};

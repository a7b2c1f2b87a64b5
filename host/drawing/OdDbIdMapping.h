// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObjectId.h"
#include "OdRxClass.h"

#include <map>

class OdDbIdMapping;
using OdDbIdMappingPtr = OdSmartPtr<OdDbIdMapping>;

/// Which object of the destination stands for which of the source, after cloning.
class KV_HOST_API OdDbIdMapping : public OdRxObject
{
public:
    static OdRxClass *desc();
    OdRxClass *isA() const override;
    static OdDbIdMappingPtr createObject();

    OdDbDatabase *destDb() const { return m_destination; }
    void setDestDb(OdDbDatabase *destination) { m_destination = destination; }
    void assign(OdDbObjectId source, OdDbObjectId destination) { m_pairs[source] = destination; }
    /// @param destination receives the counterpart; left alone when there is none.
    /// @return false when the id was not mapped.
    bool compute(OdDbObjectId source, OdDbObjectId &destination) const;

private:
    OdDbDatabase *m_destination = nullptr;
    std::map<OdDbObjectId, OdDbObjectId> m_pairs;
};

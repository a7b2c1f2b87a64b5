// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObject.h"
#include "OdResBuf.h"

class OdDbXrecord;
using OdDbXrecordPtr = OdSmartPtr<OdDbXrecord>;

/// A list of values under group codes.
class KV_HOST_API OdDbXrecord : public OdDbObject
{
public:
    static OdRxClass *desc();
    static OdDbXrecordPtr cast(const OdRxObject *object);
    static OdDbXrecordPtr createObject();

    /// The values in order; null when there is none.
    /// @param database for hosts that translate handles; null here.
    /// @param status an out-parameter of hosts that tell errors so; null here.
    OdResBufPtr rbChain(OdDbDatabase *database = nullptr, int *status = nullptr) const;
    /// Replaces the values. Buffers without a type, a head for instance, are left out.
    void setFromRbChain(const OdResBuf *chain, OdDbDatabase *database = nullptr);
};

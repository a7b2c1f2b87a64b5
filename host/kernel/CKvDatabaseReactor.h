// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDatabaseReactor.h"

/// Base of database reactors of this host.
class KV_HOST_API CKvDatabaseReactor : public OdDbDatabaseReactor
{
public:
    static OdRxClass *desc();
    OdRxClass *isA() const override;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxObject.h"
#include "hostApi.h"

/// What a running command works on. Hosts derive from it.
class KV_HOST_API OdEdCommandContext : public OdRxObject
{
public:
    static OdRxClass *desc();
    OdRxClass *isA() const override;
};

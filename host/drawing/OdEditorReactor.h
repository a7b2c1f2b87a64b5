// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxObject.h"
#include "hostApi.h"

/// What an editor keeps in its list of reactors.
class KV_HOST_API OdEditorReactor : public OdRxObject
{
public:
    static OdRxClass *desc();
    OdRxClass *isA() const override;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

class OdString;

/// Learns when expressions of the command line are run. The bodies here do nothing.
class KV_HOST_API OdEdLispEngineReactor
{
public:
    virtual ~OdEdLispEngineReactor();

    /// @param firstLine of what is going to run.
    virtual void lispWillStart(const OdString &firstLine);
    virtual void lispEnded();
    virtual void lispCancelled();
};

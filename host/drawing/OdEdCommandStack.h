// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxObject.h"
#include "hostApi.h"

class OdEdCommand;
class OdEdCommandStack;
class OdEdCommandStackReactor;
using OdEdCommandStackPtr = OdSmartPtr<OdEdCommandStack>;

/// The commands that the command line knows.
class KV_HOST_API OdEdCommandStack : public OdRxObject
{
public:
    static OdRxClass *desc();
    OdRxClass *isA() const override;

    /// Keeps a reference.
    /// @throws OdError kDuplicateName when a command of that global name is there.
    virtual void addCommand(OdEdCommand *command) = 0;
    /// Does nothing for a command that is not there.
    virtual void removeCommand(OdEdCommand *command) = 0;
    /// @param reactor not owned; added once however often it is given.
    virtual void addReactor(OdEdCommandStackReactor *reactor) = 0;
    virtual void removeReactor(OdEdCommandStackReactor *reactor) = 0;
};

/// The command stack of the running host; null when it has none.
KV_HOST_API OdEdCommandStackPtr odedRegCmds();

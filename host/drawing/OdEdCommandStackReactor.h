// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

class OdEdCommand;
class OdEdCommandContext;
class OdString;

/// Learns what happens on the command stack. The bodies here do nothing.
class KV_HOST_API OdEdCommandStackReactor
{
public:
    virtual ~OdEdCommandStackReactor();

    virtual void commandAdded(OdEdCommand *command);
    virtual void commandWillBeRemoved(OdEdCommand *command);
    virtual void commandWillStart(OdEdCommand *command, OdEdCommandContext *context);
    /// The command came to its normal end; it still counts as running.
    virtual void commandEnded(OdEdCommand *command, OdEdCommandContext *context);
    /// The user broke the command off.
    virtual void commandCancelled(OdEdCommand *command, OdEdCommandContext *context);
    virtual void commandFailed(OdEdCommand *command, OdEdCommandContext *context);
    /// The user typed a name that no command has.
    virtual void unknownCommand(const OdString &name, OdEdCommandContext *context);
};

// SPDX-License-Identifier: MIT
#pragma once

#include "OdEdCommand.h"
#include "hostApi.h"

#include <cstdint>

class CKvCommandContext;

/// Base of commands of this host: a command has to tell its names and do its work.
class KV_HOST_API CKvCommand : public OdEdCommand
{
public:
    CKvCommand();
    ~CKvCommand() override;

    static OdRxClass *desc();
    OdRxClass *isA() const override;

    /// The group of all commands that tell no other.
    OdString groupName() const override;
    /// Calls executeCommand with the host's context and gives its result.
    int execute(OdEdCommandContext *context) override;
    /// Null.
    OdRxModule *module() const override;
    void undefine(bool isUndefined) override;
    std::int32_t flags() const override;

    /// The command's work.
    /// @param context null when the command was started without one of this host.
    /// @return kNormal or kFailed.
    virtual int executeCommand(CKvCommandContext *context) = 0;
    /// Opens the help topic of the command.
    virtual void Help();
    /// Number of the help topic, 0 for none.
    virtual int helpContextId() const;

protected:
    /// Sets bits of flags; those that are set stay.
    void AddFlags(std::int32_t flags);

private:
    std::int32_t m_flags = 0;
    bool m_isUndefined = false;
};

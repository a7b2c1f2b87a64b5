// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxObject.h"
#include "OdString.h"
#include "hostApi.h"

#include <cstdint>

class OdEdCommandContext;
class OdRxModule;

/// A command of the command line.
class KV_HOST_API OdEdCommand : public OdRxObject
{
public:
    /// Result codes of execute.
    static constexpr int kNormal = 5100;
    static constexpr int kFailed = -5001;

    static OdRxClass *desc();
    OdRxClass *isA() const override;

    /// Commands of one origin have one group, so that they can be listed and removed together.
    virtual OdString groupName() const = 0;
    /// The name in every language, with a leading underscore and in upper case.
    virtual OdString globalName() const = 0;
    /// The name in the user's language, in upper case.
    virtual OdString localName() const = 0;
    /// Runs the command.
    /// @param context never null.
    /// @return kNormal or kFailed.
    virtual int execute(OdEdCommandContext *context) = 0;
    /// The module that brought the command; null for one of the host's own.
    virtual OdRxModule *module() const = 0;
    /// @param isUndefined true: the name is no longer found without its underscore.
    virtual void undefine(bool isUndefined) = 0;
    /// Bits that tell the host how to run the command.
    virtual std::int32_t flags() const = 0;
};

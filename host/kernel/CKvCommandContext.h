// SPDX-License-Identifier: MIT
#pragma once

#include "OdEdCommandContext.h"
#include "hostApi.h"

class CKvDocument;

/// The command line of one document.
class KV_HOST_API CKvCommandContext : public OdEdCommandContext
{
public:
    static OdRxClass *desc();
    OdRxClass *isA() const override;

    /// The document whose command line this is. What a command edits is that document's database;
    /// without a document, or without its database, there is nothing to edit. May be null.
    virtual CKvDocument *document() const = 0;
    /// Number of commands in progress; a command that is ending still counts.
    virtual int activeCommandDepth() const = 0;
    /// True in any state in which no command may be posted.
    virtual bool isInputSuspended() const = 0;
    /// True while a script feeds the command line.
    virtual bool isScriptRunning() const = 0;
};

/// The host's view of a context; null for null and for a context of another host.
KV_HOST_API CKvCommandContext *GetKvCommandContext(OdEdCommandContext *context);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"
#include "OdResBuf.h"
#include "hostApi.h"

class CKvApplicationFrame;
class CKvDocumentManager;
class CKvExpressionParserData;
class CKvStandardsSettings;
class OdDbDatabase;
class OdDbHostAppServices;

/// The services of the running host.
class KV_HOST_API CKvSystemServices
{
public:
    virtual ~CKvSystemServices() = default;

    /// Searches a support file by its bare name.
    /// @param database of the document whose folder counts too; null for none.
    /// @return its full path, empty when there is none.
    virtual CKvString
    findFile(const CKvString &name, int hint, OdDbDatabase *database, int flags) = 0;
    /// Null in a host without windows.
    virtual CKvApplicationFrame *applicationFrame() = 0;
    /// Null in a host without documents.
    virtual CKvDocumentManager *documentManager() = 0;
    /// Never null.
    virtual OdDbHostAppServices *hostAppServices() = 0;
    /// Runs what the chain names, a command or a function with its arguments, and returns when that
    /// has finished.
    /// @param data fresh for each call.
    /// @param request from the name (type 5005) to the end mark (type 5000).
    /// @return what it gave; null for nothing.
    virtual OdResBufPtr evaluateExpression(CKvExpressionParserData &data, OdResBufPtr request) = 0;
    /// Queues a command for the command line once the host is idle, and returns.
    /// @param request from the name (type 5005) to the end mark (type 5000).
    virtual void postCommand(OdResBufPtr request) = 0;
    /// Never null.
    virtual CKvStandardsSettings *standardsSettings() = 0;
};

/// The running host's services, null before it has any.
KV_HOST_API CKvSystemServices *GetKvSystemServices();
/// @param services not owned; null takes them away.
KV_HOST_API void SetKvSystemServices(CKvSystemServices *services);

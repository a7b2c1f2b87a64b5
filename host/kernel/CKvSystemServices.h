// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"
#include "hostApi.h"

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
    /// Never null.
    virtual OdDbHostAppServices *hostAppServices() = 0;
    /// Never null.
    virtual CKvStandardsSettings *standardsSettings() = 0;
};

/// The running host's services, null before it has any.
KV_HOST_API CKvSystemServices *GetKvSystemServices();
/// @param services not owned; null takes them away.
KV_HOST_API void SetKvSystemServices(CKvSystemServices *services);

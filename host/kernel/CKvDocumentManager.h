// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

class CKvDocument;
class CKvDocumentManagerReactor;
class OdDbDatabase;

/// The host's open documents.
class KV_HOST_API CKvDocumentManager
{
public:
    virtual ~CKvDocumentManager() = default;

    /// Null for a drawing that belongs to no document.
    virtual CKvDocument *documentForDatabase(OdDbDatabase *database) = 0;
    /// @param reactor not owned; added once however often it is given.
    virtual void addDocumentReactor(CKvDocumentManagerReactor *reactor) = 0;
    virtual void removeDocumentReactor(CKvDocumentManagerReactor *reactor) = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

class CKvDocument;
class CKvString;

/// Learns how documents come and go. The bodies here do nothing.
class KV_HOST_API CKvDocumentManagerReactor
{
public:
    virtual ~CKvDocumentManagerReactor();

    virtual void DocumentCreateStarted(CKvDocument *document);
    virtual void DocumentCreated(CKvDocument *document);
    /// The document is whole for the last time.
    virtual void DocumentToBeDestroyed(CKvDocument *document);
    /// @param document no longer the manager's and about to go: an address to compare, no more.
    virtual void DocumentDestroyed(CKvDocument *document);
    virtual void DatabaseAttached(CKvDocument *document);
    virtual void DatabaseDetached(CKvDocument *document);
    virtual void DocumentToBeActivated(CKvDocument *document);
    virtual void DocumentToBeDeactivated(CKvDocument *document);
    virtual void DocumentActivated(CKvDocument *document);
    virtual void DocumentCreateCanceled(CKvDocument *document);
    /// @param document null when the last document has gone.
    virtual void DocumentBecameCurrent(CKvDocument *document);
    /// @param isAllowed whether the user may change the active document.
    virtual void DocumentActivationModified(bool isAllowed);
    /// @param path of the file that is going to be opened.
    /// @param openMode how it is opened. @param fileFormat as what it is read.
    virtual void
    DocumentPreOpen(CKvDocument *document, const CKvString &path, int openMode, int fileFormat);
};

// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

class CKvCommandContext;
class CKvDatabase;
class CKvSelectionSet;

/// An open drawing with its command line and its selection.
class KV_HOST_API CKvDocument
{
public:
    virtual ~CKvDocument() = default;

    /// Null while the document has no drawing.
    virtual CKvDatabase *GetKvDatabase() const = 0;
    /// Never null.
    virtual CKvCommandContext *commandContext() const = 0;
    /// True while the document must be left alone.
    virtual bool isDocumentBusy() const = 0;
    /// What the user has selected; null when the document has no selection.
    virtual CKvSelectionSet *selectionSet() const = 0;
};

/// The document that the user works in; null when none is open.
KV_HOST_API CKvDocument *ACTIVE_DOCUMENT();

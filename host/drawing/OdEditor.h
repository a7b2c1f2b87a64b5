// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxObject.h"
#include "hostApi.h"

class OdEditorReactor;

/// The editor of the running host.
class KV_HOST_API OdEditor : public OdRxObject
{
public:
    static OdRxClass *desc();
    OdRxClass *isA() const override;

    /// @param reactor not owned; added once however often it is given. A CKvEditorReactor hears the
    /// command stack and the expressions too, for as long as it is here.
    virtual void addReactor(OdEditorReactor *reactor) = 0;
    virtual void removeReactor(OdEditorReactor *reactor) = 0;
};

/// Null when the host has none.
KV_HOST_API OdEditor *odedEditor();

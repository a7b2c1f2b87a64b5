// SPDX-License-Identifier: MIT
#pragma once

#include "OdEdCommandStackReactor.h"
#include "OdEdLispEngineReactor.h"
#include "OdEditorReactor.h"
#include "hostApi.h"

/// Base of editor reactors of this host. Being added to the editor is all it takes to hear the
/// command stack and the expressions of the command line too.
class KV_HOST_API CKvEditorReactor : public OdEditorReactor,
                                     public OdEdCommandStackReactor,
                                     public OdEdLispEngineReactor
{
public:
    static OdRxClass *desc();
    OdRxClass *isA() const override;
};

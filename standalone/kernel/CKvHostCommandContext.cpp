// SPDX-License-Identifier: MIT
#include "CKvHostCommandContext.h"

#include "CKvCommandLine.h"

bool CKvHostCommandContext::isScriptRunning() const
{
    const CKvCommandLine *line = CKvCommandLine::current();
    return line && line->isScriptRunning();
}

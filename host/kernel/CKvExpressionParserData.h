// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"

/// The state of one evaluation. Made anew for each; callers set nothing in it.
class KV_HOST_API CKvExpressionParserData
{
public:
    /// Why the expression could not be run; empty when it was.
    const CKvString &failure() const { return m_failure; }
    void setFailure(const CKvString &failure) { m_failure = failure; }

private:
    CKvString m_failure;
};

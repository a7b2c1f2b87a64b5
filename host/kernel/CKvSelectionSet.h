// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

class CKvSelectionSetImpl;

/// What is selected in a document.
class KV_HOST_API CKvSelectionSet
{
public:
    virtual ~CKvSelectionSet() = default;
    /// The set itself, with what can be done to it. Never null.
    virtual CKvSelectionSetImpl *ss_impl() = 0;
};

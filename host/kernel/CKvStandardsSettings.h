// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"

/// The part of the host's settings that concerns standards.
class KV_HOST_API CKvStandardsSettings
{
public:
    virtual ~CKvStandardsSettings() = default;
    /// Full path of the file that comes before all others, "None" or empty for none.
    virtual CKvString preferredStandardsFile() const = 0;
    virtual bool fixAutomatically() const = 0;
    virtual bool showIgnored() const = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommand.h"

/// Checks the objects that the last edit has changed. The manager posts it; users have no need to.
class CKvCommandInterStateVerify : public CKvCommand
{
public:
    CKvCommandInterStateVerify();

    OdString globalName() const override;
    /// The same in every language.
    OdString localName() const override;
    /// @return kNormal.
    /// @throws what the check throws; the changed objects then wait on.
    int executeCommand(CKvCommandContext *context) override;
    int helpContextId() const override;
};

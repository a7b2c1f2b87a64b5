// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsManagerImpl.h"

#include <string>
#include <vector>

/// A manager whose dialogs are answered by the test.
class CKvTestManager : public CKvStdsManagerImpl
{
public:
    /// What the user answers when told of violations.
    bool wantsVerification = false;
    /// "notify", and "show" with the names of the violating objects, in order.
    std::vector<std::string> shown;

protected:
    bool notifyViolation() override;
    void showVerificationDialog(const OdArray<CKvStdsViolation> &violations) override;
};

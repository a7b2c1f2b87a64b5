// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommand.h"

class CKvStdsManager;

/// Checks the whole drawing and shows the violations. Makes sure first that a category is checked
/// and that the standards files are there, and offers the standards settings when not.
class CKvCommandVerifyStandards : public CKvCommand
{
public:
    CKvCommandVerifyStandards();

    OdString globalName() const override;
    OdString localName() const override;
    /// @return kFailed when the context has no drawing to work on.
    /// @throws OdError_NotThatKindOfClass for a damaged list of standards files, and what the check
    /// throws.
    int executeCommand(CKvCommandContext *context) override;
    int helpContextId() const override;

private:
    bool checkStandardsFiles();
    template <class Dialog> void askForSettings();

    /// The user does not want the settings.
    bool m_cancelled = false;
};

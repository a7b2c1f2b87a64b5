// SPDX-License-Identifier: MIT
#pragma once

#include "CKvEditorReactor.h"

/// Decides at the borders of commands and expressions what becomes of the queue of changed objects:
/// dropped, kept, or handed to the check.
class CKvStandardEditorReactor : public CKvEditorReactor
{
public:
    /// Drops the queue, except for the check itself and for the two commands that insert a block.
    void commandWillStart(OdEdCommand *command, OdEdCommandContext *context) override;
    /// Posts the check, at the end of an outermost command that no script runs. Saving and
    /// verifying stop the timer instead.
    void commandEnded(OdEdCommand *command, OdEdCommandContext *context) override;
    void commandCancelled(OdEdCommand *command, OdEdCommandContext *context) override;

    void lispWillStart(const OdString &firstLine) override;
    void lispEnded() override;
    void lispCancelled() override;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommandStack.h"
#include "OdEdCommandStackReactor.h"

#include <QStringList>

/// What a reactor of the command stack hears: "+LAYER" for the start of a command, "-LAYER" for its
/// end, "x" for one that was broken off, "!" for one that failed.
class CKvCommandLog : public OdEdCommandStackReactor
{
public:
    explicit CKvCommandLog(CKvCommandStack &stack);
    ~CKvCommandLog() override;

    void commandWillStart(OdEdCommand *command, OdEdCommandContext *context) override;
    void commandEnded(OdEdCommand *command, OdEdCommandContext *context) override;
    void commandCancelled(OdEdCommand *command, OdEdCommandContext *context) override;
    void commandFailed(OdEdCommand *command, OdEdCommandContext *context) override;

    /// What came since the last call.
    QStringList take();

private:
    void note(char mark, const OdEdCommand &command);

    CKvCommandStack &m_stack;
    QStringList m_heard;
};

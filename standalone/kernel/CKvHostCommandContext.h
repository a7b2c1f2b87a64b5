// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommandContext.h"

/// The state of one document's command line.
class CKvHostCommandContext : public CKvCommandContext
{
public:
    /// @param document null for the command line that is there while no document is open.
    explicit CKvHostCommandContext(CKvDocument *document)
        : m_document(document)
    {
    }

    CKvDocument *document() const override { return m_document; }
    int activeCommandDepth() const override { return m_depth; }
    bool isInputSuspended() const override { return m_isInputSuspended; }
    /// A script feeds whatever document is active.
    bool isScriptRunning() const override;

    /// The document goes while a command of its own still runs.
    void forgetDocument() { m_document = nullptr; }
    void enterCommand() { ++m_depth; }
    void leaveCommand() { --m_depth; }
    void setInputSuspended(bool isSuspended) { m_isInputSuspended = isSuspended; }

private:
    CKvDocument *m_document;
    int m_depth = 0;
    bool m_isInputSuspended = false;
};

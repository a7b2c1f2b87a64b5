// SPDX-License-Identifier: MIT
#pragma once

#include "OdEdLispEngineReactor.h"
#include "OdEditor.h"

#include <functional>
#include <vector>

class CKvCommandStack;

/// The editor of the running host. A reactor of the host's own kind hears commands and expressions
/// for as long as it is here.
class CKvEditor : public OdEditor
{
public:
    /// @param stack must outlive the editor.
    explicit CKvEditor(CKvCommandStack &stack)
        : m_stack(stack)
    {
    }

    void addReactor(OdEditorReactor *reactor) override;
    void removeReactor(OdEditorReactor *reactor) override;

    /// Calls action for each reactor that hears expressions.
    void tellLisp(const std::function<void(OdEdLispEngineReactor &)> &action);

private:
    CKvCommandStack &m_stack;
    std::vector<OdEditorReactor *> m_reactors;
};

// SPDX-License-Identifier: MIT
#include "CKvEditor.h"

#include "CKvCommandStack.h"
#include "CKvEditorReactor.h"
#include "tellReactors.h"

#include <algorithm>

namespace
{

/// Null for a reactor of another kind.
CKvEditorReactor *ownKind(OdEditorReactor *reactor)
{
    const bool isOwn = reactor && reactor->isKindOf(CKvEditorReactor::desc());
    return isOwn ? static_cast<CKvEditorReactor *>(reactor) : nullptr;
}

} // namespace

void CKvEditor::addReactor(OdEditorReactor *reactor)
{
    if (!reactor || std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end()) {
        return;
    }
    m_reactors.push_back(reactor);
    m_stack.addReactor(ownKind(reactor));
}

void CKvEditor::removeReactor(OdEditorReactor *reactor)
{
    m_stack.removeReactor(ownKind(reactor));
    m_reactors.erase(std::remove(m_reactors.begin(), m_reactors.end(), reactor), m_reactors.end());
}

void CKvEditor::tellLisp(const std::function<void(OdEdLispEngineReactor &)> &action)
{
    tellReactors(m_reactors, [&](OdEditorReactor &reactor) {
        if (CKvEditorReactor *own = ownKind(&reactor)) {
            action(*own);
        }
    });
}

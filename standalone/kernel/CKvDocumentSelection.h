// SPDX-License-Identifier: MIT
#pragma once

#include "CKvSelectionSetImpl.h"

#include <functional>

/// What is selected in one document.
class CKvDocumentSelection : public CKvSelectionSetImpl
{
public:
    CKvSelectionSetImpl *ss_impl() override { return this; }
    OdDbObjectIdArray selectedObjectIds() const override { return m_ids; }
    void clearSelection() override { select({}); }

    void select(const OdDbObjectIdArray &ids)
    {
        m_ids = ids;
        if (m_onChange) {
            m_onChange();
        }
    }
    /// @param action called after each change.
    void onChange(std::function<void()> action) { m_onChange = std::move(action); }

private:
    OdDbObjectIdArray m_ids;
    std::function<void()> m_onChange;
};

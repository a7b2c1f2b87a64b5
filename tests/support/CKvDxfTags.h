// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDxfValue.h"

#include <vector>

/// One group of a drawing under construction. A value may be the handle of a named record, which is
/// known only when the drawing is written.
struct CKvDxfTag {
    int code = 0;
    QString value;
    /// Empty for a plain value; otherwise the table ("STYLE") whose record the value names.
    QString handleOfRecordIn;
};

/// Groups in the order of the file.
class CKvDxfTags
{
public:
    void append(int code, const CKvDxfValue &value) { m_tags.push_back({ code, value.text, {} }); }
    void appendHandleOf(int code, const QString &table, const QString &name)
    {
        m_tags.push_back({ code, name, table });
    }
    /// Changes the first group of the code, or appends one.
    void set(int code, const CKvDxfValue &value);
    /// Removes all groups of the code.
    void remove(int code);

    bool isEmpty() const { return m_tags.empty(); }
    std::vector<CKvDxfTag>::const_iterator begin() const { return m_tags.begin(); }
    std::vector<CKvDxfTag>::const_iterator end() const { return m_tags.end(); }

private:
    std::vector<CKvDxfTag> m_tags;
};

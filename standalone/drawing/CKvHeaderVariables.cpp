// SPDX-License-Identifier: MIT
#include "CKvHeaderVariables.h"

#include "CKvDrawingFormat.h"
#include "CKvObjectSlot.h"
#include "CKvTagReader.h"

std::vector<CKvHeaderVariables::Variable> CKvHeaderVariables::all() const
{
    std::vector<Variable> variables;
    CKvTagReader reader(m_slot.bytes(), m_slot.form());
    std::string_view name;
    while (reader.next()) {
        const CKvTag &tag = reader.tag();
        if (tag.code == 9) {
            name = tag.word();
        } else if (!name.empty() && tag.code != 999) {
            variables.push_back({ name, tag });
            name = {};
        }
    }
    return variables;
}

std::optional<CKvTag> CKvHeaderVariables::find(std::string_view name) const
{
    std::optional<CKvTag> found;
    for (const Variable &variable : all()) {
        if (variable.name == name) {
            found = variable.value;
        }
    }
    return found;
}

void CKvHeaderVariables::set(std::string_view name, std::string_view value, int code)
{
    if (const std::optional<CKvTag> tag = find(name)) {
        replaceTagValue(m_slot.ownBytes(), *tag, value);
        return;
    }
    if (code == 0 || m_slot.begin == 0) {
        return;
    }
    std::string &bytes = m_slot.ownBytes();
    appendTag(bytes, m_slot.format().style, 9, name);
    appendTag(bytes, m_slot.format().style, code, value);
}

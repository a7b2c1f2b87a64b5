// SPDX-License-Identifier: MIT
#include "CKvScriptedPlugin.h"

#include "CKvStdsFix.h"

namespace
{

std::string toStdString(const CKvString &text)
{
    return text.toQString().toStdString();
}

} // namespace

void CKvScriptedPlugin::previewRow(const char *name,
                                   const OdResBufPtr &current,
                                   const OdResBufPtr &standard)
{
    previewName(name);
    previewCurrent(current);
    previewStandard(standard);
}

void CKvScriptedPlugin::previewName(const char *name)
{
    m_names.emplace_back(name);
}

void CKvScriptedPlugin::applyFix(CKvStdsErrorPtr error, CKvStdsFixPtr fix, CKvString &message)
{
    note("applyFix " + toStdString(error->objectName()) + " <- " + toStdString(fix->name()) + " '"
         + toStdString(message) + '\'');
}

void CKvScriptedPlugin::propertyDifferences(CKvStdsErrorPtr error,
                                            CKvStdsFixPtr fix,
                                            std::vector<CKvString> &names,
                                            OdArray<OdResBufPtr> &objectValues,
                                            OdArray<OdResBufPtr> &fixValues,
                                            std::vector<CKvString> &units)
{
    const bool isFresh =
        names.empty() && objectValues.isEmpty() && fixValues.isEmpty() && units.empty();
    note("propertyDifferences " + toStdString(error->objectName()) + " -> "
         + toStdString(fix->name()) + (isFresh ? "" : " not fresh"));
    if (m_names.empty() && m_current.isEmpty() && m_standard.isEmpty()) {
        names.emplace_back("Name");
        objectValues.append(textValue(error->objectName()));
        fixValues.append(textValue(fix->name()));
        return;
    }
    names = m_names;
    objectValues = m_current;
    fixValues = m_standard;
}

OdResBufPtr textValue(const CKvString &text)
{
    OdResBufPtr value = OdResBuf::newRb(OdResBuf::kRtString);
    value->setString(text.toOdString());
    return value;
}

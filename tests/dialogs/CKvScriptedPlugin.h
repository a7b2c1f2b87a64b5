// SPDX-License-Identifier: MIT
#pragma once

#include "CKvRecordingPlugin.h"

/// A plug-in whose previews the test makes up. A repair is only written down:
/// "layers.applyFix WALLS <- WALLS ''", with the text that came along behind it.
class CKvScriptedPlugin : public CKvRecordingPlugin
{
public:
    using CKvRecordingPlugin::CKvRecordingPlugin;

    /// The next preview has this row. Null buffers are possible.
    void previewRow(const char *name, const OdResBufPtr &current, const OdResBufPtr &standard);
    /// A preview whose lists end too early or too late.
    void previewName(const char *name);
    void previewCurrent(const OdResBufPtr &value) { m_current.append(value); }
    void previewStandard(const OdResBufPtr &value) { m_standard.append(value); }

    void applyFix(CKvStdsErrorPtr error, CKvStdsFixPtr fix, CKvString &message) override;
    /// Without rows of its own: one row, "Name" from the error's to the fix's.
    void propertyDifferences(CKvStdsErrorPtr error,
                             CKvStdsFixPtr fix,
                             std::vector<CKvString> &names,
                             OdArray<OdResBufPtr> &objectValues,
                             OdArray<OdResBufPtr> &fixValues,
                             std::vector<CKvString> &units) override;

private:
    std::vector<CKvString> m_names;
    OdArray<OdResBufPtr> m_current;
    OdArray<OdResBufPtr> m_standard;
};

/// A value for previews.
OdResBufPtr textValue(const CKvString &text);

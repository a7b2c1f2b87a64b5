// SPDX-License-Identifier: MIT
#include "CKvDesktop.h"
#include "CKvDrawingStore.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "OdError.h"
#include "desktopCommands.h"
#include "hostVariables.h"
#include "recordTables.h"
#include "showStandardsSettings.h"

namespace
{

constexpr int kFilesPage = 1;

/// What the file says about itself; another value would make it unreadable.
constexpr const char *kReadOnly[] = {
    "ACADVER", "ACADMAINTVER", "DWGCODEPAGE", "HANDLING", "HANDSEED"
};

/// Variables whose value is the name of a record.
struct CKvNamingVariable {
    const char *name;
    CKvRecordKind kind;
};
constexpr CKvNamingVariable kNaming[] = { { "CLAYER", CKvRecordKind::Layer },
                                          { "CELTYPE", CKvRecordKind::LineStyle },
                                          { "TEXTSTYLE", CKvRecordKind::TextStyle },
                                          { "DIMSTYLE", CKvRecordKind::DimStyle } };

/// @throws OdError for a variable that nobody may set, and for a name that the drawing lacks.
void requireSettable(const CKvHostDocument &document, const QString &name, const QString &value)
{
    for (const char *readOnly : kReadOnly) {
        if (name == QLatin1String(readOnly)) {
            throw OdError(OdResult::kInvalidInput, name.toStdString() + " can't be changed.");
        }
    }
    for (const CKvNamingVariable &naming : kNaming) {
        // ByLayer and ByBlock are there whether or not the file has records for them.
        if (name == QLatin1String(naming.name)
            && !value.startsWith(QLatin1String("By"), Qt::CaseInsensitive)) {
            requireRecord(document, naming.kind, value, OdDb::kForRead);
        }
    }
}

QString valueText(const OdResBuf &value)
{
    switch (value.restype()) {
    case OdResBuf::kRtDouble:
        return QString::number(value.getDouble(), 'g', 12);
    case OdResBuf::kRtString:
        return value.getString().toQString();
    default:
        return QString::number(value.getInt64());
    }
}

/// The value as the header writes it.
/// @throws OdError_InvalidSysvarValue for a text that is no such value.
QString checkedText(const QString &name, const OdResBuf &present, const QString &value)
{
    bool isValid = true;
    if (present.restype() == OdResBuf::kRtDouble) {
        value.toDouble(&isValid);
    } else if (present.restype() == OdResBuf::kRtInt16) {
        value.toShort(&isValid);
    } else if (present.restype() == OdResBuf::kRtInt32) {
        value.toInt(&isValid);
    }
    if (!isValid || value.contains(QLatin1Char('\n'))) {
        throw OdError_InvalidSysvarValue(name.toStdString());
    }
    return value;
}

/// Null when there is no such variable.
OdResBufPtr variable(CKvDesktop &desktop, const QString &name)
{
    if (OdResBufPtr own = hostVariable(name)) {
        return own;
    }
    const CKvHostDocument &document = desktop.requireDocument();
    try {
        return document.GetKvDatabase()->getSysVar(OdString(name));
    } catch (const OdError &error) {
        // An unknown name is told in the user's words, without a message box.
        if (error.code() == int(OdResult::kInvalidInput)) {
            return {};
        }
        throw;
    }
}

bool setVariable(CKvDesktop &desktop)
{
    CKvCommandLine &line = desktop.commandLine();
    const QString name = line.ask(CKvMainWindow::tr("Variable:")).toUpper();
    const OdResBufPtr present = variable(desktop, name);
    if (!present) {
        line.print(CKvMainWindow::tr("There is no variable \"%1\".").arg(name));
        return false;
    }
    const QString value = line.ask(
        CKvMainWindow::tr("New value of %1 <%2>:").arg(name, valueText(*present)),
        present->restype() == OdResBuf::kRtString ? CKvInput::Kind::Text : CKvInput::Kind::Word);
    if (value.isEmpty() || setHostVariable(name, value)) {
        return true;
    }
    CKvHostDocument &document = desktop.requireDocument();
    requireSettable(document, name, value);
    CKvDrawingStore &store = document.GetKvDatabase()->store();
    const std::string text = store.format().codec.encode(checkedText(name, *present, value));
    store.header().set("$" + name.toStdString(), text);
    desktop.window().rebuildPicture();
    return true;
}

bool standardsSettings(CKvDesktop &desktop)
{
    showStandardsSettings(desktop, kFilesPage);
    return true;
}

} // namespace

void addSettingCommands(CKvDesktop &desktop)
{
    desktop.addCommand("SETVAR", &setVariable);
    desktop.addCommand("DWGSTANDARDS", &standardsSettings);
}

// SPDX-License-Identifier: MIT
#include "CKvMainWindow.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdError.h"
#include "commandOptions.h"
#include "desktopCommands.h"
#include "dimSettings.h"

namespace
{

using Style = OdDbDimStyleTableRecord;
using StylePtr = OdDbDimStyleTableRecordPtr;

StylePtr askStyle(CKvDesktop &desktop)
{
    return StylePtr(askRecord(desktop, CKvRecordKind::DimStyle, namePrompt(), OdDb::kForRead));
}

/// The header has the settings of the current style once more.
void copyToHeader(const Style &style, const CKvDimSetting &setting)
{
    if (!setting.setInHeader) {
        return;
    }
    try {
        setting.setInHeader(*style.database(), style);
    } catch (const OdError_InvalidSysvarValue &) {
        // A file may hold what the header refuses; the style has it all the same.
    }
}

void setVariable(CKvDesktop &desktop)
{
    const StylePtr style = askStyle(desktop);
    const QString name = desktop.commandLine().ask(CKvMainWindow::tr("Setting:"));
    const CKvDimSetting *setting = findDimSetting(name);
    if (!setting) {
        throw OdError(
            OdResult::kInvalidInput,
            QStringLiteral("A dimension style has no setting \"%1\".").arg(name).toStdString());
    }
    const QString answer = desktop.commandLine().ask(
        CKvMainWindow::tr("New value of %1 <%2>:")
            .arg(QLatin1String(setting->name), setting->text(*style).toQString()),
        setting->isText ? CKvInput::Kind::Text : CKvInput::Kind::Word);
    if (answer.isEmpty()) {
        return;
    }
    style->upgradeOpen();
    setting->set(*style, answer);
    if (style->objectId() == style->database()->getDIMSTYLE()) {
        copyToHeader(*style, *setting);
    }
}

void listSettings(CKvDesktop &desktop)
{
    const StylePtr style = askStyle(desktop);
    for (const CKvDimSetting &setting : CKvDimSettings()) {
        desktop.commandLine().print(QStringLiteral("%1 = %2").arg(
            QLatin1String(setting.name), setting.text(*style).toQString()));
    }
}

void makeStyleCurrent(CKvDesktop &desktop)
{
    const StylePtr style = askStyle(desktop);
    style->database()->setDIMSTYLE(style->objectId());
    for (const CKvDimSetting &setting : CKvDimSettings()) {
        copyToHeader(*style, setting);
    }
}

bool dimStyleCommand(CKvDesktop &desktop)
{
    return runOption(desktop,
                     CKvMainWindow::tr("[New/Variable/List/Set/Delete]:"),
                     { { "NEW", adds<Style>(CKvRecordKind::DimStyle) },
                       { "VARIABLE", &setVariable },
                       { "LIST", &listSettings },
                       { "SET", &makeStyleCurrent },
                       { "DELETE", deletes(CKvRecordKind::DimStyle) } });
}

} // namespace

void addDimStyleCommand(CKvDesktop &desktop)
{
    desktop.addCommand("DIMSTYLE", &dimStyleCommand);
}

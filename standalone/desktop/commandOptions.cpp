// SPDX-License-Identifier: MIT
#include "commandOptions.h"

#include "CKvDrawingStore.h"
#include "CKvMainWindow.h"
#include "recordNames.h"

bool runOption(CKvDesktop &desktop, const QString &prompt, const CKvCommandOptions &options)
{
    desktop.requireDocument();
    const QString word = desktop.commandLine().ask(prompt);
    for (const auto &[name, action] : options) {
        if (!word.isEmpty() && QLatin1String(name).startsWith(word, Qt::CaseInsensitive)) {
            action(desktop);
            return true;
        }
    }
    desktop.commandLine().print(CKvMainWindow::tr("\"%1\" is no option.").arg(word));
    return false;
}

QString namePrompt()
{
    return CKvMainWindow::tr("Name:");
}

std::function<void(CKvDesktop &)> deletes(CKvRecordKind kind)
{
    return [kind](CKvDesktop &desktop) {
        eraseRecord(askRecord(desktop, kind, namePrompt(), OdDb::kForRead));
    };
}

std::function<void(CKvDesktop &)> makesCurrent(CKvRecordKind kind, const char *variable, int code)
{
    return [kind, variable, code](CKvDesktop &desktop) {
        const OdDbSymbolTableRecordPtr record =
            askRecord(desktop, kind, namePrompt(), OdDb::kForRead);
        const std::string name(encodedRecordName(*record->objectId().slot()));
        record->database()->store().header().set(variable, name, code);
    };
}

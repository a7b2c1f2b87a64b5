// SPDX-License-Identifier: MIT
#include "showStandardsSettings.h"

#include "CKvDesktop.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "CKvStandardsSettingsDlg.h"

#include <QApplication>

void showStandardsSettings(CKvDesktop &desktop, int page)
{
    CKvHostDocument *document = desktop.activeDocument();
    if (!document) {
        desktop.commandLine().print(CKvMainWindow::tr("No drawing is open."));
        return;
    }
    // A verification that is going on asks for the settings too; they come up before its dialog.
    QWidget *modal = QApplication::activeModalWidget();
    CKvStandardsSettingsDlg dialog(
        desktop.session(), *document, page, modal ? modal : &desktop.window());
    dialog.exec();
}

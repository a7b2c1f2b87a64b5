// SPDX-License-Identifier: MIT
#include "CKvCommandDrawingStandards.h"

#include "requestStandardsSettings.h"

#include <QCoreApplication>

OdString CKvCommandDrawingStandards::globalName() const
{
    return OdString("_DRAWINGSTANDARDS");
}

OdString CKvCommandDrawingStandards::localName() const
{
    return OdString(
        QCoreApplication::translate("CKvCommandDrawingStandards",
                                    "DRAWINGSTANDARDS",
                                    "Command Name: Needs to be unique and all uppercase."));
}

int CKvCommandDrawingStandards::executeCommand(CKvCommandContext * /*context*/)
{
    requestStandardsSettings(StandardsSettingsPage::Files);
    return kNormal;
}

int CKvCommandDrawingStandards::helpContextId() const
{
    return 3071;
}

// SPDX-License-Identifier: MIT
#include "CKvLineStyleTexts.h"

#include <QCoreApplication>

CKvString CKvLineStyleTexts::description()
{
    return CKvString(QCoreApplication::translate(
        "CKvLineStylePluginImpl",
        "Verifies that names and properties of line style in a drawing match those in an "
        "associated standards file."));
}

CKvString CKvLineStyleTexts::pluginName()
{
    return CKvString(QCoreApplication::translate("CKvLineStylePluginImpl", "Line Styles"));
}

CKvString CKvLineStyleTexts::objectTypeLabel()
{
    return CKvString(QCoreApplication::translate("CKvLineStylePluginImpl", "LineStyle"));
}

CKvString CKvLineStyleTexts::messageWord()
{
    return CKvString(QCoreApplication::translate("CKvStandardsPluginImpl", "LineStyle"));
}

CKvString CKvLineStyleTexts::nameProperty()
{
    return CKvString(QCoreApplication::translate("CKvLineStylePluginImpl", "Name"));
}

CKvString CKvLineStyleTexts::dashesProperty()
{
    return CKvString(QCoreApplication::translate("CKvLineStylePluginImpl", "Dashes"));
}

CKvString CKvLineStyleTexts::patternLengthProperty()
{
    return CKvString(QCoreApplication::translate("CKvLineStylePluginImpl", "Pattern Length"));
}

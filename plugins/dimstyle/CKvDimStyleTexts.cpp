// SPDX-License-Identifier: MIT
#include "CKvDimStyleTexts.h"

#include <QCoreApplication>

CKvString CKvDimStyleTexts::description()
{
    return CKvString(QCoreApplication::translate(
        "CKvDimStylePluginImpl",
        "Verifies that names and properties of dimension styles in a drawing match those in an "
        "associated standards file."));
}

CKvString CKvDimStyleTexts::pluginName()
{
    return CKvString(QCoreApplication::translate("CKvDimStylePluginImpl", "Dimension Styles"));
}

CKvString CKvDimStyleTexts::objectTypeLabel()
{
    return CKvString(QCoreApplication::translate("CKvDimStylePluginImpl", "DimensionStyle"));
}

CKvString CKvDimStyleTexts::messageWord()
{
    return CKvString(QCoreApplication::translate("CKvStandardsPluginImpl", "DimensionStyle"));
}

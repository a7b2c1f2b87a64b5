// SPDX-License-Identifier: MIT
#include "CKvTextStyleTexts.h"

#include <QCoreApplication>

CKvString CKvTextStyleTexts::description()
{
    return CKvString(QCoreApplication::translate(
        "CKvTextStylePluginImpl",
        "Verifies that names and properties of text styles in a drawing match those in an "
        "associated standards file."));
}

CKvString CKvTextStyleTexts::pluginName()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "Text Styles"));
}

CKvString CKvTextStyleTexts::objectTypeLabel()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "TextStyle"));
}

CKvString CKvTextStyleTexts::messageWord()
{
    return CKvString(QCoreApplication::translate("CKvStandardsPluginImpl", "TextStyle"));
}

CKvString CKvTextStyleTexts::nameProperty()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "Name"));
}

CKvString CKvTextStyleTexts::fontProperty()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "Font"));
}

CKvString CKvTextStyleTexts::bigFontProperty()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "BigFont"));
}

CKvString CKvTextStyleTexts::textHeightProperty()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "Text Height"));
}

CKvString CKvTextStyleTexts::upsideDownProperty()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "Upside Down"));
}

CKvString CKvTextStyleTexts::verticalProperty()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "Vertical"));
}

CKvString CKvTextStyleTexts::backwardsProperty()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "Backwards"));
}

CKvString CKvTextStyleTexts::widthProperty()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "Width"));
}

CKvString CKvTextStyleTexts::obliqueAngleProperty()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "Oblique Angle"));
}

CKvString CKvTextStyleTexts::fontStyleProperty()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "Font Style"));
}

CKvString CKvTextStyleTexts::annotativeProperty()
{
    return CKvString(QCoreApplication::translate("CKvTextStylePluginImpl", "Annotative"));
}

CKvString CKvTextStyleTexts::matchOrientationProperty()
{
    return CKvString(
        QCoreApplication::translate("CKvTextStylePluginImpl", "Match orientation to sheet"));
}

// SPDX-License-Identifier: MIT
#include "CKvLayerTexts.h"

#include <QCoreApplication>

CKvString CKvLayerTexts::description()
{
    return CKvString(QCoreApplication::translate(
        "CKvLayerPluginImpl",
        "Verifies that names and properties of layers in a drawing match those in an associated "
        "standards file."));
}

CKvString CKvLayerTexts::pluginName()
{
    return CKvString(QCoreApplication::translate("CKvLayerPluginImpl", "Layers"));
}

CKvString CKvLayerTexts::objectTypeLabel()
{
    return CKvString(QCoreApplication::translate("CKvLayerPluginImpl", "Layer"));
}

CKvString CKvLayerTexts::messageWord()
{
    return CKvString(QCoreApplication::translate("CKvStandardsPluginImpl", "Layer"));
}

CKvString CKvLayerTexts::nameProperty()
{
    return CKvString(QCoreApplication::translate("CKvLayerPluginImpl", "Name"));
}

CKvString CKvLayerTexts::lineColorProperty()
{
    return CKvString(QCoreApplication::translate("CKvLayerPluginImpl", "LineColor"));
}

CKvString CKvLayerTexts::lineWeightProperty()
{
    return CKvString(QCoreApplication::translate("CKvLayerPluginImpl", "LineWeight"));
}

CKvString CKvLayerTexts::lineStyleProperty()
{
    return CKvString(QCoreApplication::translate("CKvLayerPluginImpl", "LineStyle"));
}

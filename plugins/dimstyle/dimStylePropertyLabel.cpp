// SPDX-License-Identifier: MIT
#include "dimStylePropertyLabel.h"

#include "dimStyleProperties.h"

#include <QCoreApplication>

CKvString dimStylePropertyLabel(const CKvString &key)
{
    for (const CKvDimStyleProperty &property : CKvDimStyleProperties()) {
        if (property.label && key.equalNoCase(CKvString(property.key))) {
            return CKvString(QCoreApplication::translate("CKvDimStylePluginImpl", property.label));
        }
    }
    return CKvString();
}

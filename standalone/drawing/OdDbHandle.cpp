// SPDX-License-Identifier: MIT
#include "OdDbHandle.h"

OdString OdDbHandle::ascii() const
{
    return isNull() ? OdString() : OdString(QString::number(m_value, 16).toUpper());
}

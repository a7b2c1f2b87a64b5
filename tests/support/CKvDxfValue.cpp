// SPDX-License-Identifier: MIT
#include "CKvDxfValue.h"

CKvDxfValue::CKvDxfValue(const char *utf8)
    : text(QString::fromUtf8(utf8))
{
}

CKvDxfValue::CKvDxfValue(const QString &value)
    : text(value)
{
}

CKvDxfValue::CKvDxfValue(int value)
    : text(QString::number(value))
{
}

CKvDxfValue::CKvDxfValue(double value)
    : text(QString::number(value, 'g', 17))
{
    if (!text.contains(QLatin1Char('.')) && !text.contains(QLatin1Char('e'))) {
        text += QStringLiteral(".0");
    }
}

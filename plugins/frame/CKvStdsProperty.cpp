// SPDX-License-Identifier: MIT
#include "CKvStdsProperty.h"

CKvStdsProperty CKvStdsProperty::text(const CKvString &name, const CKvString &value)
{
    OdResBufPtr buffer = OdResBuf::newRb(OdResBuf::kRtString);
    buffer->setString(value.toOdString());
    return { name, buffer };
}

CKvStdsProperty CKvStdsProperty::color(const CKvString &name, const OdCmColor &value)
{
    OdResBufPtr buffer = OdResBuf::newRb(OdResBuf::kRtColor);
    buffer->setColor(value);
    return { name, buffer };
}

CKvStdsProperty CKvStdsProperty::integer(const CKvString &name, std::int32_t value)
{
    OdResBufPtr buffer = OdResBuf::newRb(OdResBuf::kRtInt32);
    buffer->setInt32(value);
    return { name, buffer };
}

CKvStdsProperty CKvStdsProperty::real(const CKvString &name, double value)
{
    OdResBufPtr buffer = OdResBuf::newRb(OdResBuf::kRtDouble);
    buffer->setDouble(value);
    return { name, buffer };
}

CKvStdsProperty CKvStdsProperty::flag(const CKvString &name, bool value)
{
    OdResBufPtr buffer = OdResBuf::newRb(OdResBuf::kDxfBool);
    buffer->setBool(value);
    return { name, buffer };
}

CKvString CKvStdsProperty::toText(const OdResBufPtr &value)
{
    return value ? CKvString(value->getString()) : CKvString();
}

OdCmColor CKvStdsProperty::toColor(const OdResBufPtr &value)
{
    return value ? value->getColor() : OdCmColor();
}

std::int32_t CKvStdsProperty::toInteger(const OdResBufPtr &value)
{
    return value ? value->getInt32() : 0;
}

double CKvStdsProperty::toReal(const OdResBufPtr &value)
{
    return value ? value->getDouble() : 0;
}

bool CKvStdsProperty::toFlag(const OdResBufPtr &value)
{
    return value && value->getBool();
}

// SPDX-License-Identifier: MIT
#include "formatValue.h"

CKvString formatValue(const OdResBufPtr &value)
{
    CKvString text;
    switch (value ? value->restype() : int(OdResBuf::kRtNoType)) {
    case OdResBuf::kRtString:
        return CKvString(value->getString());
    case OdResBuf::kRtColor:
        return CKvString(value->getColor().colorNameForDisplay());
    case OdResBuf::kRtInt32:
        return text.formatA("%i", int(value->getInt32()));
    case OdResBuf::kRtInt16:
        return text.formatA("%i", int(value->getInt16()));
    case OdResBuf::kRtDouble:
        return text.formatA("%.4f", value->getDouble());
    case OdResBuf::kDxfInt8:
        return text.formatA("%i", int(value->getInt8()));
    case OdResBuf::kDxfBool:
        return text.formatA("%i", int(value->getBool()));
    default:
        return text;
    }
}

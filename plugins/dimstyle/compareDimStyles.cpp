// SPDX-License-Identifier: MIT
#include "compareDimStyles.h"

#include "dimStyleProperties.h"

std::vector<DimStylePropertyRow> compareDimStyles(OdDbDimStyleTableRecordPtr first,
                                                  OdDbDimStyleTableRecordPtr second,
                                                  bool includeAll)
{
    std::vector<DimStylePropertyRow> rows;
    if (!first || !second) {
        return rows;
    }
    for (const CKvDimStyleProperty &property : CKvDimStyleProperties()) {
        const CKvString firstValue = property.text(*first);
        // A style is compared with itself for the sake of its values.
        const CKvString secondValue = first == second ? firstValue : property.text(*second);
        if (includeAll || firstValue != secondValue) {
            rows.push_back({ CKvString(property.key).makeUpper().toQString(),
                             firstValue.toQString(),
                             secondValue.toQString() });
        }
    }
    return rows;
}

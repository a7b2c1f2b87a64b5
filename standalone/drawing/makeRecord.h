// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingFormat.h"
#include "CKvObjectAccess.h"

#include <string_view>

/// A new record of a table, in no drawing, with an empty name and no flags.
/// @param type the word behind group 0.
/// @param mark its subclass mark (group 100).
template <class T> OdSmartPtr<T> makeRecord(std::string_view type, std::string_view mark)
{
    OdSmartPtr<T> record(new T, kOdRxObjAttach);
    CKvObjectAccess::makeDetached(*record, type);
    CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*record);
    slot.rxClass = T::desc();
    const CKvTagStyle &style = slot.format().style;
    appendTag(*slot.own, style, 100, "AcDbSymbolTableRecord");
    appendTag(*slot.own, style, 100, mark);
    appendTag(*slot.own, style, 2, "");
    appendTag(*slot.own, style, 70, "0");
    return record;
}

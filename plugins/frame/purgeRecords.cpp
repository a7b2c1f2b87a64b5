// SPDX-License-Identifier: MIT
#include "purgeRecords.h"

#include "OdDbSymbolTableRecord.h"

void purgeRecords(OdDbDatabase &drawing, OdDbObjectIdArray ids)
{
    drawing.purgeIds(ids);
    while (!ids.isEmpty()) {
        const OdDbSymbolTableRecordPtr record(ids.first().openObject(OdDb::kForWrite));
        if (record && !record->isDependent()) {
            record->erase(/*isErasing*/ true);
        }
        ids.removeAt(0);
    }
}

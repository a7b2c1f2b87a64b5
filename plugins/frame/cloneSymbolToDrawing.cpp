// SPDX-License-Identifier: MIT
#include "cloneSymbolToDrawing.h"

#include "OdDbDatabase.h"
#include "OdDbIdMapping.h"

OdDbObjectId cloneSymbolToDrawing(OdDbSymbolTablePtr table, OdDbObjectId sourceId)
{
    const OdDbSymbolTableRecordPtr symbol(sourceId.openObject(OdDb::kForRead));
    if (!symbol || !table) {
        return OdDbObjectId();
    }
    const OdDbSymbolTableRecordPtr own = table->getAt(symbol->getName(), OdDb::kForRead);
    if (own) {
        return own->objectId();
    }
    const OdDbIdMappingPtr mapping = OdDbIdMapping::createObject();
    mapping->setDestDb(table->database());
    OdDbObjectIdArray ids;
    ids.append(sourceId);
    try {
        sourceId.database()->wblockCloneObjects(ids,
                                                table->objectId(),
                                                *mapping,
                                                OdDb::kReplaceDuplicates,
                                                /*deferTranslation*/ false);
    } catch (const OdError &) {
        // The setting that names the symbol is lost, the rest of the repair is not.
        return OdDbObjectId();
    }
    OdDbObjectId clone;
    mapping->compute(sourceId, clone);
    return clone;
}

// SPDX-License-Identifier: MIT
#include "walkDrawing.h"

#include "OdDbBlockTableRecord.h"
#include "OdDbDatabase.h"
#include "OdDbSymbolTable.h"
#include "OdDbSymbolTableIterator.h"

void walkTable(OdDbObjectId tableId,
               OdDb::OpenMode mode,
               const std::function<void(const OdDbSymbolTableRecordPtr &)> &visit)
{
    const OdDbSymbolTablePtr table(tableId.openObject(OdDb::kForRead));
    if (!table) {
        return;
    }
    const OdDbSymbolTableIteratorPtr records =
        table->newIterator(/*fromBeginning*/ true, /*skipErased*/ true);
    for (records->start(/*fromBeginning*/ true, /*skipErased*/ true); !records->done();
         records->step(/*forward*/ true, /*skipErased*/ true)) {
        visit(records->getRecord(mode, /*openErased*/ false));
    }
}

void walkOwnEntitiesNaming(const OdDbDatabase &drawing,
                           OdDbObjectId recordId,
                           const std::function<void(const OdDbEntityPtr &)> &visit)
{
    OdDbObjectId lastBlockId;
    bool isFromElsewhere = false;
    for (const OdDbObjectId id : drawing.entitiesNaming(recordId)) {
        const OdDbEntityPtr entity(id.openObject(OdDb::kForWrite));
        if (!entity) {
            continue;
        }
        const OdDbObjectId blockId = entity->ownerId();
        if (blockId != lastBlockId) {
            const OdDbBlockTableRecordPtr block(blockId.openObject(OdDb::kForRead));
            isFromElsewhere = block && block->isFromExternalReference();
            lastBlockId = blockId;
        }
        if (!isFromElsewhere) {
            visit(entity);
        }
    }
}

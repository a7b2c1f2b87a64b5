// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbEntity.h"
#include "OdDbSymbolTableRecord.h"

#include <functional>

/// Visits the records of a table in the order of the file, erased ones left out. Does nothing when
/// the id opens no object.
/// @throws OdError_NotThatKindOfClass when the id is that of something else than a table.
void walkTable(OdDbObjectId tableId,
               OdDb::OpenMode mode,
               const std::function<void(const OdDbSymbolTableRecordPtr &)> &visit);

/// Visits, opened for writing, the entities that may name a record, in all blocks but those of
/// external references: model space, the layouts and every block definition. They come in the order
/// of a walk over all blocks, but cost no more than they are. Whether an entity does name the
/// record is for visit to ask.
void walkOwnEntitiesNaming(const OdDbDatabase &drawing,
                           OdDbObjectId recordId,
                           const std::function<void(const OdDbEntityPtr &)> &visit);

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

/// Visits, opened for writing, the entities of all blocks but those of external references: model
/// space, the layouts and every block definition.
void walkOwnEntities(const OdDbDatabase &drawing,
                     const std::function<void(const OdDbEntityPtr &)> &visit);

/// As walkOwnEntities, but visits only those that may name a record, so that a merge costs what it
/// moves and not what the drawing is large. Whether an entity does name it is for visit to ask.
void walkOwnEntitiesNaming(const OdDbDatabase &drawing,
                           OdDbObjectId recordId,
                           const std::function<void(const OdDbEntityPtr &)> &visit);

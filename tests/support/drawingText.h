// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDatabase.h"
#include "OdDbEntity.h"

#include <functional>
#include <string>

/// What a drawing holds, one record a line in the order of the file, for whole expectations.

/// "WALLS red Continuous 0.25 mm", the lineweight as its number in hundredths where it is one:
/// "25".
std::string layersText(const OdDbDatabase &drawing);
/// The names in a table: tableText(drawing, drawing.getLinetypeTableId()).
std::string namesText(OdDbObjectId tableId);
/// Block, type and value of every entity that has a value: "*Model_Space LINE DASHED".
std::string entitiesText(const OdDbDatabase &drawing,
                         const std::function<std::string(const OdDbEntityPtr &)> &valueOf);
/// Block, type and layer of every entity: "*Model_Space LINE WALLS".
std::string entityLayersText(const OdDbDatabase &drawing);
/// Name of an object, open or not; empty for null.
std::string nameOf(OdDbObjectId id);
/// The record of that name in a table; null when there is none.
OdDbObjectId recordId(OdDbObjectId tableId, const char *name);

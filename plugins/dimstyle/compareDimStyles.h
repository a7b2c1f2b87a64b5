// SPDX-License-Identifier: MIT
#pragma once

#include "DimStylePropertyRow.h"
#include "OdDbDimStyleTableRecord.h"

#include <vector>

/// Compares two dimension styles, of one drawing or of two, by the texts of their values: reals
/// agree when they print the same, blocks and styles when their names are the same in every letter.
/// @param includeAll gives the rows that agree as well.
/// @return rows in the order of the properties; none when one of the styles is null.
std::vector<DimStylePropertyRow> compareDimStyles(OdDbDimStyleTableRecordPtr first,
                                                  OdDbDimStyleTableRecordPtr second,
                                                  bool includeAll);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingReport.h"
#include "CKvTextTable.h"

/// The heading of the columns.
CKvTextTable::Row violationHeading();

/// The lines of the text report about one violation: type, name, property, current value, standard
/// value and file, a row for each differing property of the recommended candidate; or a sentence
/// where there is no such property.
std::vector<CKvTextTable::Row> violationRows(const CKvViolationReport &violation);

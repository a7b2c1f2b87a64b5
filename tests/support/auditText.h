// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsViolation.h"

#include <QStringList>

#include <ostream>
#include <string>
#include <vector>

/// Runs a plug-in over a drawing as an audit does and gives all that it found.
/// @param ids empty for the whole table.
std::vector<CKvStdsViolation> audit(CKvStdsPlugins &plugin,
                                    const OdDbDatabasePtr &drawing,
                                    const QStringList &standardsPaths,
                                    const OdDbObjectIdArray &ids = {});

/// "red", "0.25 mm", "2.0000": a value as users read it; "-" for none.
std::string valueText(const OdResBufPtr &value);
/// "LineColor=red LineStyle=Continuous LineWeight=Default Name=WALLS", sorted by name.
std::string propertiesText(const CKvStdsErrorPtr &error);
/// "WALLS@/office.dxf", one a line.
std::string fixesText(const OdArray<CKvStdsFixPtr> &fixes);
/// One line a violation with its candidates behind it, a star on the recommended one:
/// "WALLS: Layer properties are non-standard. DOORS@/office.dxf WALLS@/office.dxf*".
std::string violationsText(const std::vector<CKvStdsViolation> &violations);
/// The rows of the preview, "LineColor: red -> blue", one a line.
std::string
previewText(CKvStdsPlugins &plugin, const CKvStdsErrorPtr &error, const CKvStdsFixPtr &fix);

/// So that a failing expectation shows the text.
void PrintTo(const CKvString &text, std::ostream *out);

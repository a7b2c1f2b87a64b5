// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class OdDbLinetypeTableRecord;

/// Group 3, what users read beside the name; empty when there is none.
QString lineStyleDescription(const OdDbLinetypeTableRecord &style);
/// @param style open for writing.
void setLineStyleDescription(OdDbLinetypeTableRecord &style, const QString &description);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsError.h"
#include "CKvStdsFix.h"
#include "CKvStdsProperty.h"
#include "CKvStdsTextStyleRecord.h"
#include "OdDbTextStyleTableRecord.h"

#include <memory>

/// The values of a text style of a drawing, which must be in one.
std::unique_ptr<CKvStdsTextStyleRecord> readTextStyle(const OdDbTextStyleTableRecordPtr &style);
/// The values that a fix or a violation holds.
/// @param fromFix true for the fix, false for the violation; the other one may be null.
std::unique_ptr<CKvStdsTextStyleRecord>
readTextStyleRecord(bool fromFix, const CKvStdsFixPtr &fix, const CKvStdsErrorPtr &error);
/// Gives a fix or a violation the twelve properties of a record, so that readTextStyleRecord reads
/// it back. One that holds properties already stays as it is.
/// @param toFix true for the fix, false for the violation; the other one may be null.
void writeTextStyleProperties(bool toFix,
                              const CKvStdsFixPtr &fix,
                              const CKvStdsErrorPtr &error,
                              const CKvStdsTextStyleRecord &record);
/// The twelve properties of a record, in their order.
CKvStdsPropertyList textStyleProperties(const CKvStdsTextStyleRecord &record);

/// True when two records agree in name and values: texts without regard to case, numbers within
/// 1e-10.
bool sameTextStyleRecord(const CKvStdsTextStyleRecord &first, const CKvStdsTextStyleRecord &second);
/// The same for a text style of a drawing, which must be in one.
bool matchesTextStyleRecord(const OdDbTextStyleTableRecordPtr &style,
                            const CKvStdsTextStyleRecord &record);
/// True when two values of a property agree, in the same way. Values of two types never do, nor do
/// values of a type that text styles don't have.
bool sameResBuf(const OdResBufPtr &first, const OdResBufPtr &second);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"

class OdDbDatabase;
class OdDbDimStyleTableRecord;

/// One property of a dimension style: what comparison, preview and repair know of it.
struct CKvDimStyleProperty {
    /// "DIMadec"; shown and kept in upper case.
    const char *key;
    /// The value as the text by which it is compared.
    CKvString (*text)(const OdDbDimStyleTableRecord &style);
    /// Writes the value of the source to the target, open for writing, and then to the header
    /// variable of the drawing. Null for what can't be copied as a value.
    /// @throws OdError_InvalidSysvarValue for a value that the header refuses.
    void (*copy)(OdDbDatabase &drawing,
                 OdDbDimStyleTableRecord &target,
                 const OdDbDimStyleTableRecord &source);
    /// The name that users read, in the language of the sources; null for a property without one.
    const char *label;
};

/// All properties of a dimension style, in the order of the comparison:
///
///     for (const CKvDimStyleProperty &property : CKvDimStyleProperties()) …
struct CKvDimStyleProperties {
};
const CKvDimStyleProperty *begin(CKvDimStyleProperties properties);
const CKvDimStyleProperty *end(CKvDimStyleProperties properties);

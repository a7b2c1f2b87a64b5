// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"

#include <cstddef>

class OdDbDatabase;
class OdDbDimStyleTableRecord;

/// A setting of dimension styles as commands show it and set it.
struct CKvDimSetting {
    /// "DIMTXT"; the last one is "ANNOTATIVE".
    const char *name;
    /// A value of its own words, blanks included.
    bool isText;
    /// The value as the checks compare it.
    CKvString (*text)(const OdDbDimStyleTableRecord &style);
    /// @param style open for writing. @param answer what the user wrote: a number, ON or OFF, a
    /// colour, a lineweight, a text or a name, where "." stands for none.
    /// @throws OdError with a sentence for the user for what is no such value, and when the version
    /// of the drawing has no place for it.
    void (*set)(OdDbDimStyleTableRecord &style, const QString &answer);
    /// Gives the drawing's header the value of the style. Null for what the header doesn't have.
    /// @throws OdError_InvalidSysvarValue for a value that the header refuses.
    void (*setInHeader)(OdDbDatabase &drawing, const OdDbDimStyleTableRecord &style);
};

/// To walk over all settings, in the order of their names in the record.
struct CKvDimSettings {
};
const CKvDimSetting *begin(CKvDimSettings);
const CKvDimSetting *end(CKvDimSettings);

/// @param name letter case aside; the "DIM" may be left out.
/// @return null when there is no such setting.
const CKvDimSetting *findDimSetting(const QString &name);

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The subclass markers (group 100) behind the common one of a record or an entity.
struct CKvSubclass {
    const char *type;
    const char *first;
    /// Null for none.
    const char *second;
};

/// @param type what stands behind group 0.
/// @return null for a type that is not known.
const CKvSubclass *subclassOf(const QString &type);

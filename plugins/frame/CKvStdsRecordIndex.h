// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsRecord.h"

#include <QHash>
#include <QString>

#include <vector>

/// Finds records by name, without regard to case, and by the key of what they are compared by, so
/// that a drawing with as many wrong objects as there are records is judged in linear time.
class CKvStdsRecordIndex
{
public:
    /// Records come in the order of their positions.
    /// @param record not owned.
    /// @param twinKey null for a record that is never left out for its values.
    void add(CKvStdsRecord *record, const QString &twinKey);
    void clear();

    /// The first record of that name; null when there is none.
    CKvStdsRecord *firstOf(const CKvString &name) const;
    /// All records of that name, in the order of their positions.
    const std::vector<CKvStdsRecord *> &namesakesOf(const CKvString &name) const;
    /// All records of that key, in the order of their positions; none for a null key.
    const std::vector<CKvStdsRecord *> &twinsOf(const QString &twinKey) const;

private:
    using Groups = QHash<QString, std::vector<CKvStdsRecord *>>;
    static const std::vector<CKvStdsRecord *> &groupOf(const Groups &groups, const QString &key);

    Groups m_byFoldedName;
    Groups m_byTwinKey;
};

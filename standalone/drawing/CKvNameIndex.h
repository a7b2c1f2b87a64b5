// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

class CKvObjectSlot;

/// @return the text with each character folded by itself, so that equal results mean names that are
/// equal without regard to case ("ß" is not "SS").
QString foldedName(const QString &name);

/// Finds the records of a table by name. Of two of one name the first added is found.
class CKvNameIndex
{
public:
    /// Null when there is none.
    CKvObjectSlot *find(const QString &name) const;
    /// @return false when another record stands under that name, and goes on to be found.
    bool add(const QString &name, CKvObjectSlot *slot);
    /// @return false when another record is the one that is found by that name.
    bool remove(const QString &name, const CKvObjectSlot *slot);
    void clear();

private:
    QHash<QString, CKvObjectSlot *> m_byFoldedName;
};

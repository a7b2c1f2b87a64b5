// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDictionaryIterator.h"
#include "OdDbObject.h"

class OdDbDictionary;
using OdDbDictionaryPtr = OdSmartPtr<OdDbDictionary>;

/// Objects under keys. Keys are found without regard to case; of two equal ones the first counts.
class KV_HOST_API OdDbDictionary : public OdDbObject
{
public:
    enum class IteratorType { kStoredOrder = 0, kSortedByKey = 1 };

    static OdRxClass *desc();
    static OdDbDictionaryPtr cast(const OdRxObject *object);
    static OdDbDictionaryPtr createObject();

    /// Null when the key is missing or leads to nothing.
    OdDbObjectId getAt(const OdString &key) const;
    /// The object itself, open; null when the key is missing or leads to nothing.
    OdDbObjectPtr getAt(const OdString &key, OdDb::OpenMode mode) const;
    /// The key of an object; empty when it is not in this dictionary.
    OdString nameAt(OdDbObjectId id) const;
    bool has(const OdString &key) const { return !getAt(key).isNull(); }
    /// Adds an entry, or replaces one; the object that was there is erased. The object becomes part
    /// of this dictionary's drawing.
    OdDbObjectId setAt(const OdString &key, const OdDbObjectPtr &object);
    /// Takes an entry out and erases its object; does nothing when the key is missing.
    void remove(const OdString &key);
    /// Sorted by the code points of the keys, or in stored order.
    OdDbDictionaryIteratorPtr newIterator(IteratorType type = IteratorType::kSortedByKey) const;
};

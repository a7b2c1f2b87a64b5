// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDxfTags.h"

#include <list>

/// A dictionary, an xrecord or another object of the OBJECTS section, with what hangs on it.
///
///     drawing.namedObjects().dictionary("AcStStandard").xrecord("0").group(1, "C:/office.dxf");
class CKvDictionaryBuilder
{
public:
    /// A dictionary without a key of its own.
    CKvDictionaryBuilder() = default;
    CKvDictionaryBuilder(const QString &type, const QString &key);

    /// The entry of that key, made when it is missing.
    CKvDictionaryBuilder &dictionary(const CKvDxfValue &key);
    /// A new entry, also beside one of the same key.
    CKvDictionaryBuilder &xrecord(const CKvDxfValue &key);
    /// A new entry of any type, "TABLESTYLE" for instance.
    CKvDictionaryBuilder &object(const CKvDxfValue &type, const CKvDxfValue &key);

    /// Adds a group to the data of an xrecord or another object.
    CKvDictionaryBuilder &group(int code, const CKvDxfValue &value);
    /// Adds a group that holds the handle of a record of a table.
    CKvDictionaryBuilder &handleOf(int code, const CKvDxfValue &table, const CKvDxfValue &name);
    /// Gives the object this handle, not the next free one.
    CKvDictionaryBuilder &handle(const CKvDxfValue &handle);

    const QString &type() const { return m_type; }
    const QString &key() const { return m_key; }
    const QString &ownHandle() const { return m_handle; }
    const CKvDxfTags &tags() const { return m_tags; }
    const std::list<CKvDictionaryBuilder> &entries() const { return m_entries; }

private:
    QString m_type = QStringLiteral("DICTIONARY");
    QString m_key;
    QString m_handle;
    CKvDxfTags m_tags;
    /// A list, so that references to entries stay good while others are added.
    std::list<CKvDictionaryBuilder> m_entries;
};

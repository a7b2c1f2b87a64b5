// SPDX-License-Identifier: MIT
#include "CKvDictionaryBuilder.h"

CKvDictionaryBuilder::CKvDictionaryBuilder(const QString &type, const QString &key)
    : m_type(type)
    , m_key(key)
{
}

CKvDictionaryBuilder &CKvDictionaryBuilder::dictionary(const CKvDxfValue &key)
{
    for (CKvDictionaryBuilder &entry : m_entries) {
        if (entry.m_key == key.text && entry.m_type == QLatin1String("DICTIONARY")) {
            return entry;
        }
    }
    return object("DICTIONARY", key);
}

CKvDictionaryBuilder &CKvDictionaryBuilder::xrecord(const CKvDxfValue &key)
{
    return object("XRECORD", key);
}

CKvDictionaryBuilder &CKvDictionaryBuilder::object(const CKvDxfValue &type, const CKvDxfValue &key)
{
    m_entries.emplace_back(type.text, key.text);
    return m_entries.back();
}

CKvDictionaryBuilder &CKvDictionaryBuilder::group(int code, const CKvDxfValue &value)
{
    m_tags.append(code, value);
    return *this;
}

CKvDictionaryBuilder &
CKvDictionaryBuilder::handleOf(int code, const CKvDxfValue &table, const CKvDxfValue &name)
{
    m_tags.appendHandleOf(code, table.text, name.text);
    return *this;
}

CKvDictionaryBuilder &CKvDictionaryBuilder::handle(const CKvDxfValue &handle)
{
    m_handle = handle.text;
    return *this;
}

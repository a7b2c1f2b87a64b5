// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDictionaryBuilder.h"

#include <optional>
#include <utility>
#include <vector>

/// What table records and entities have in common, as the writer of the drawing needs it.
struct CKvObjectContent {
    /// Behind group 0.
    QString type;
    /// Group 2 of a table record; empty for an entity.
    QString name;
    /// Empty for the next free one.
    QString handle;
    /// Behind the name of a table record, or behind the own subclass marker of an entity.
    CKvDxfTags tags;
    CKvDxfTags extendedData;
    std::optional<CKvDictionaryBuilder> extensionDictionary;
};

/// The words that all builders of objects understand. Each returns the builder itself.
template <class Derived> class CKvObjectBuilder
{
public:
    /// Adds a group, also beside one of the same code.
    Derived &group(int code, const CKvDxfValue &value)
    {
        m_content.tags.append(code, value);
        return self();
    }
    /// Adds a group that holds the handle of a record: handleOf(340, "STYLE", "NOTES").
    Derived &handleOf(int code, const CKvDxfValue &table, const CKvDxfValue &name)
    {
        m_content.tags.appendHandleOf(code, table.text, name.text);
        return self();
    }
    /// Leaves out a group that the builder writes of its own accord.
    Derived &without(int code)
    {
        m_content.tags.remove(code);
        return self();
    }
    /// Group 70.
    Derived &flags(int flags)
    {
        m_content.tags.set(70, flags);
        return self();
    }
    /// Extended data of an application, which is entered in the APPID table.
    Derived &extendedData(const CKvDxfValue &application,
                          const std::vector<std::pair<int, CKvDxfValue>> &groups)
    {
        m_content.extendedData.append(1001, application);
        for (const auto &[code, value] : groups) {
            m_content.extendedData.append(code, value);
        }
        return self();
    }
    /// Gives the object this handle, not the next free one.
    Derived &handle(const CKvDxfValue &handle)
    {
        m_content.handle = handle.text;
        return self();
    }
    /// The object's extension dictionary, made when it is missing.
    CKvDictionaryBuilder &extensionDictionary()
    {
        if (!m_content.extensionDictionary) {
            m_content.extensionDictionary.emplace();
        }
        return *m_content.extensionDictionary;
    }
    /// Stamps the object's violation: flag 1 and the user's name, or 0 and no name.
    Derived &stamped(int flag, const CKvDxfValue &user)
    {
        extensionDictionary()
            .dictionary("AcStStandard")
            .xrecord("AcStFlags")
            .group(300, user)
            .group(90, flag);
        return self();
    }

    const CKvObjectContent &content() const { return m_content; }

protected:
    CKvObjectBuilder(const QString &type, const QString &name)
    {
        m_content.type = type;
        m_content.name = name;
    }
    Derived &set(int code, const CKvDxfValue &value)
    {
        m_content.tags.set(code, value);
        return self();
    }
    Derived &self() { return static_cast<Derived &>(*this); }

    CKvObjectContent m_content;
};

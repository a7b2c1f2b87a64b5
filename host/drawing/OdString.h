// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

#include <QString>

/// The drawing library's text: UTF-16, never null, compared by code unit.
class KV_HOST_API OdString
{
public:
    OdString() = default;
    explicit OdString(const QString &text)
        : m_text(text)
    {
    }
    /// @param latin1 a literal of the sources; null gives an empty text.
    explicit OdString(const char *latin1)
        : m_text(QLatin1String(latin1))
    {
    }

    static const OdString kEmpty;

    bool isEmpty() const { return m_text.isEmpty(); }
    int getLength() const { return m_text.length(); }
    /// Less than, equal to or greater than 0, by code unit.
    int compare(const OdString &other) const { return m_text.compare(other.m_text); }
    /// As compare, each character folded by itself: "ß" is not "SS".
    int iCompare(const OdString &other) const
    {
        return m_text.compare(other.m_text, Qt::CaseInsensitive);
    }
    const QString &toQString() const { return m_text; }

    friend bool operator==(const OdString &a, const OdString &b) { return a.m_text == b.m_text; }
    friend bool operator!=(const OdString &a, const OdString &b) { return a.m_text != b.m_text; }
    friend bool operator<(const OdString &a, const OdString &b) { return a.m_text < b.m_text; }

private:
    QString m_text;
};

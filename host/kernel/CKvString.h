// SPDX-License-Identifier: MIT
#pragma once

#include "OdString.h"
#include "hostApi.h"

#include <QString>

/// The host's text. Orders by code unit, so that sorted maps over it are stable.
class KV_HOST_API CKvString
{
public:
    CKvString() = default;
    explicit CKvString(const QString &text)
        : m_text(text)
    {
    }
    explicit CKvString(const OdString &text)
        : m_text(text.toQString())
    {
    }
    /// @param latin1 a literal of the sources; null gives an empty text.
    explicit CKvString(const char *latin1)
        : m_text(QLatin1String(latin1))
    {
    }

    bool isEmpty() const { return m_text.isEmpty(); }
    int getLength() const { return m_text.length(); }
    /// Less than, equal to or greater than 0; with regard to case.
    int compare(const CKvString &other) const { return m_text.compare(other.m_text); }
    /// As compare, each character folded by itself: "ß" is not "SS".
    int compareNoCase(const CKvString &other) const
    {
        return m_text.compare(other.m_text, Qt::CaseInsensitive);
    }
    bool equalNoCase(const CKvString &other) const { return compareNoCase(other) == 0; }
    CKvString &makeUpper();
    /// The first characters; all of them when there are no more than that.
    CKvString left(int count) const { return CKvString(m_text.left(count)); }
    /// @return how often it was replaced.
    int replace(QChar before, QChar after);

    /// printf into this text: the format and its texts are Latin-1 (formatA) or UTF-8 (format).
    CKvString &formatA(const char *format, ...);
    CKvString &format(const char *format, ...);

    const QString &toQString() const { return m_text; }
    OdString toOdString() const { return OdString(m_text); }

    friend bool operator==(const CKvString &a, const CKvString &b) { return a.m_text == b.m_text; }
    friend bool operator!=(const CKvString &a, const CKvString &b) { return a.m_text != b.m_text; }
    friend bool operator<(const CKvString &a, const CKvString &b) { return a.m_text < b.m_text; }

private:
    QString m_text;
};

// SPDX-License-Identifier: MIT
#include "CKvString.h"

#include <QByteArray>

#include <clocale>
#include <cstdarg>
#include <cstdio>
#ifndef _WIN32
#include <locale.h>
#endif

namespace
{

/// Printing in the "C" locale, whatever the program has set: numbers keep their full stop.
int printPlainly(char *buffer, std::size_t size, const char *format, std::va_list arguments)
{
#ifdef _WIN32
    static const _locale_t s_plain = _create_locale(LC_ALL, "C");
    std::va_list copy;
    va_copy(copy, arguments);
    const int length = buffer ? _vsnprintf_l(buffer, size, format, s_plain, copy)
                              : _vscprintf_l(format, s_plain, copy);
    va_end(copy);
    return length;
#else
    static const locale_t s_plain = newlocale(LC_ALL_MASK, "C", locale_t(nullptr));
    const locale_t before = uselocale(s_plain);
    std::va_list copy;
    va_copy(copy, arguments);
    const int length = std::vsnprintf(buffer, size, format, copy);
    va_end(copy);
    uselocale(before);
    return length;
#endif
}

/// Empty when the format is wrong.
QByteArray printed(const char *format, std::va_list arguments)
{
    const int length = printPlainly(nullptr, 0, format, arguments);
    if (length <= 0) {
        return {};
    }
    // One more for the final null, which the array takes off again.
    QByteArray bytes(length + 1, '\0');
    printPlainly(bytes.data(), std::size_t(bytes.size()), format, arguments);
    bytes.chop(1);
    return bytes;
}

} // namespace

CKvString &CKvString::makeUpper()
{
    // Character by character: a name keeps its length.
    for (QChar &character : m_text) {
        character = character.toUpper();
    }
    return *this;
}

int CKvString::replace(QChar before, QChar after)
{
    const int count = m_text.count(before);
    m_text.replace(before, after);
    return count;
}

CKvString &CKvString::formatA(const char *format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    m_text = QString::fromLatin1(printed(format, arguments));
    va_end(arguments);
    return *this;
}

CKvString &CKvString::format(const char *format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    m_text = QString::fromUtf8(printed(format, arguments));
    va_end(arguments);
    return *this;
}

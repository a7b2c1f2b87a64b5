// SPDX-License-Identifier: MIT
#include "takeWord.h"

QString takeWord(QString &line)
{
    int begin = 0;
    while (begin < line.length() && line[begin].isSpace()) {
        ++begin;
    }
    const bool isQuoted = begin < line.length() && line[begin] == QLatin1Char('"');
    int end = isQuoted ? line.indexOf(QLatin1Char('"'), begin + 1) : begin;
    if (isQuoted && end >= 0) {
        QString word = line.mid(begin + 1, end - begin - 1);
        line.remove(0, end + 1);
        return word;
    }
    end = begin;
    while (end < line.length() && !line[end].isSpace()) {
        ++end;
    }
    QString word = line.mid(begin, end - begin);
    line.remove(0, end);
    return word;
}

QString unquoted(const QString &text)
{
    const bool isQuoted =
        text.length() >= 2 && text.startsWith(QLatin1Char('"')) && text.endsWith(QLatin1Char('"'));
    return isQuoted ? text.mid(1, text.length() - 2) : text;
}

QString quoted(const QString &text)
{
    return QString(QLatin1Char('"') + text + QLatin1Char('"'));
}

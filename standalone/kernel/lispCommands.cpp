// SPDX-License-Identifier: MIT
#include "lispCommands.h"

#include "OdError.h"

namespace
{

constexpr int kDeepest = 100;

/// Reads an expression word by word.
class CKvLispReader
{
public:
    explicit CKvLispReader(const QString &text)
        : m_text(text)
    {
    }

    QList<QStringList> read()
    {
        QList<QStringList> commands;
        readList(commands, 0);
        skipBlanks();
        if (m_at < m_text.length()) {
            fail();
        }
        return commands;
    }

private:
    [[noreturn]] void fail() const
    {
        throw OdError(OdResult::kInvalidInput,
                      "The expression can't be run: " + m_text.toStdString());
    }
    void skipBlanks()
    {
        while (m_at < m_text.length() && m_text[m_at].isSpace()) {
            ++m_at;
        }
    }
    bool skip(char wanted)
    {
        skipBlanks();
        const bool isThere = m_at < m_text.length() && m_text[m_at] == QLatin1Char(wanted);
        m_at += isThere ? 1 : 0;
        return isThere;
    }
    /// A text in quotes, a number or a name.
    QString readWord()
    {
        QString word;
        if (skip('"')) {
            while (m_at < m_text.length() && m_text[m_at] != QLatin1Char('"')) {
                if (m_text[m_at] == QLatin1Char('\\')) {
                    ++m_at;
                }
                word += m_at < m_text.length() ? m_text[m_at++] : QChar();
            }
            if (!skip('"')) {
                fail();
            }
            return word;
        }
        while (m_at < m_text.length() && !m_text[m_at].isSpace() && m_text[m_at] != QLatin1Char('(')
               && m_text[m_at] != QLatin1Char(')')) {
            word += m_text[m_at++];
        }
        if (word.isEmpty()) {
            fail();
        }
        return word;
    }
    void readList(QList<QStringList> &commands, int depth)
    {
        if (depth > kDeepest || !skip('(')) {
            fail();
        }
        const QString function = readWord().toLower();
        if (function == QLatin1String("progn")) {
            while (!skip(')')) {
                readList(commands, depth + 1);
            }
            return;
        }
        QStringList words;
        while (!skip(')')) {
            words << readWord();
        }
        if (function == QLatin1String("setvar") && words.size() == 2) {
            commands << (QStringList(QStringLiteral("SETVAR")) + words);
        } else if (function == QLatin1String("command") && !words.isEmpty()) {
            commands << words;
        } else {
            fail();
        }
    }

    QString m_text;
    int m_at = 0;
};

} // namespace

QList<QStringList> lispCommands(const QString &expression)
{
    return CKvLispReader(expression).read();
}

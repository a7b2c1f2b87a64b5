// SPDX-License-Identifier: MIT
#include "textLines.h"

#include "CKvShapeSink.h"

namespace
{

// From one base line to the next, in heights of capital letters.
constexpr double kLineStep = 5.0 / 3;

/// Takes the codes out of a text of several lines.
class CKvCodeReader
{
public:
    explicit CKvCodeReader(const QString &text)
        : m_text(text)
    {
    }

    QStringList lines()
    {
        while (m_at < m_text.length()) {
            const QChar character = m_text[m_at++];
            if (character == QLatin1Char('\\') && m_at < m_text.length()) {
                readCode(m_text[m_at++]);
            } else if (character == QLatin1Char('^') && m_at < m_text.length()) {
                readCaret(m_text[m_at++]);
            } else if (character != QLatin1Char('{') && character != QLatin1Char('}')) {
                m_line += character;
            }
        }
        m_lines << m_line;
        return m_lines;
    }

private:
    void endLine()
    {
        m_lines << m_line;
        m_line.clear();
    }
    /// What stands up to the semicolon.
    QString argument()
    {
        int end = m_text.indexOf(QLatin1Char(';'), m_at);
        end = end < 0 ? m_text.length() : end;
        QString argument = m_text.mid(m_at, end - m_at);
        m_at = end + 1;
        return argument;
    }
    void readCode(QChar code)
    {
        switch (code.unicode()) {
        case 'P':
        case 'X':
            endLine();
            break;
        case '~':
            m_line += QChar(QChar::Nbsp);
            break;
        case '\\':
        case '{':
        case '}':
            m_line += code;
            break;
        case 'S':
            readStack();
            break;
        case 'A':
        case 'C':
        case 'c':
        case 'F':
        case 'f':
        case 'H':
        case 'p':
        case 'Q':
        case 'T':
        case 'W':
            argument();
            break;
        default:
            // \L, \l, \O, \o, \K, \k: lines below, above and through the letters.
            break;
        }
    }
    void readStack()
    {
        QString stack = argument();
        stack.replace(QLatin1Char('^'), QLatin1Char(' '));
        stack.replace(QLatin1Char('#'), QLatin1Char('/'));
        m_line += stack.trimmed();
    }
    void readCaret(QChar code)
    {
        if (code == QLatin1Char('J')) {
            endLine();
        } else if (code == QLatin1Char('I')) {
            m_line += QStringLiteral("    ");
        } else if (code == QLatin1Char(' ')) {
            m_line += QLatin1Char('^');
        }
    }

    QString m_text;
    int m_at = 0;
    QString m_line;
    QStringList m_lines;
};

/// Breaks a line at its blanks so that each part keeps within the width, where it can.
QStringList wrapped(const QString &line, const CKvTextFont &font, double width)
{
    if (width <= 0 || font.widthOf(line) <= width) {
        return { line };
    }
    QStringList parts;
    QString part;
    for (const QString &word : line.split(QLatin1Char(' '))) {
        const QString longer = part.isEmpty() ? word : QString(part + QLatin1Char(' ') + word);
        if (!part.isEmpty() && font.widthOf(longer) > width) {
            parts << part;
            part = word;
        } else {
            part = longer;
        }
    }
    return parts << part;
}

QChar controlCharacter(QChar code)
{
    switch (code.toLower().unicode()) {
    case 'd':
        return { 0x00b0 };
    case 'c':
        return { 0x2300 };
    case 'p':
        return { 0x00b1 };
    case '%':
        return QLatin1Char('%');
    default:
        return {};
    }
}

} // namespace

QString plainText(const QString &text)
{
    QString plain;
    int at = 0;
    while (at < text.length()) {
        if (text.midRef(at, 2) != QLatin1String("%%") || at + 2 >= text.length()) {
            plain += text[at++];
            continue;
        }
        const QChar code = text[at + 2];
        const QString digits = text.mid(at + 2, 3);
        bool isNumber = false;
        const int number = digits.toInt(&isNumber);
        if (digits.length() == 3 && code.isDigit() && isNumber) {
            plain += QChar(number);
            at += 5;
            continue;
        }
        if (!controlCharacter(code).isNull()) {
            plain += controlCharacter(code);
        }
        at += 3;
    }
    return plain;
}

QStringList plainLines(const QString &text)
{
    QStringList lines;
    for (const QString &line : CKvCodeReader(text).lines()) {
        lines << plainText(line);
    }
    return lines;
}

void drawTextBlock(const CKvTextBlock &block,
                   const QStringList &lines,
                   const CKvTextStyles::Style &style,
                   CKvShapeSink &sink)
{
    const double letterWidth = block.height * block.widthFactor;
    if (!(block.height > 0) || !(letterWidth > 0)) {
        return;
    }
    const CKvTextFont font = sink.picture().fonts[style.font];
    QStringList broken;
    for (const QString &line : lines) {
        broken << wrapped(line, font, block.limit / letterWidth);
    }
    const double step = kLineStep * block.lineSpacing;
    const double depth = 1 + step * (broken.size() - 1);
    double base = -1 + depth * block.vertical / 2;
    for (const QString &line : broken) {
        CKvTextShape shape;
        shape.text = line;
        shape.font = style.font;
        shape.width = font.widthOf(line);
        shape.placement = QTransform::fromTranslate(-shape.width * block.horizontal / 2, base)
            * QTransform::fromScale(letterWidth, block.height) * block.placement;
        sink.text(shape);
        base -= step;
    }
}

// SPDX-License-Identifier: MIT
#include "CKvTextTable.h"

#include "displayWidth.h"

#include <algorithm>

namespace
{

/// A longer cell pushes its own row aside, not all others.
constexpr int kWidestColumn = 40;
constexpr int kGap = 2;

const char *escapeCode(CKvTextStyle style)
{
    switch (style) {
    case CKvTextStyle::Bold:
        return "1";
    case CKvTextStyle::Faint:
        return "2";
    case CKvTextStyle::Red:
        return "31";
    case CKvTextStyle::Green:
        return "32";
    case CKvTextStyle::Yellow:
        return "33";
    case CKvTextStyle::Plain:
        break;
    }
    return "";
}

} // namespace

QString styled(const QString &text, CKvTextStyle style, bool isColored)
{
    if (!isColored || style == CKvTextStyle::Plain || text.isEmpty()) {
        return text;
    }
    return QStringLiteral("\x1b[%1m%2\x1b[0m").arg(QLatin1String(escapeCode(style)), text);
}

std::vector<int> CKvTextTable::columnWidths() const
{
    std::vector<int> widths;
    for (const Row &row : m_rows) {
        // The last cell has nothing behind it to align.
        for (std::size_t i = 0; i + 1 < row.size(); ++i) {
            widths.resize(std::max(widths.size(), i + 1), 0);
            const int width = displayWidth(row[i].text);
            widths[i] = width > kWidestColumn ? widths[i] : std::max(widths[i], width);
        }
    }
    return widths;
}

QString CKvTextTable::toText(int indent, bool isColored) const
{
    const std::vector<int> widths = columnWidths();
    QString text;
    for (const Row &row : m_rows) {
        QString line(indent, QLatin1Char(' '));
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += styled(row[i].text, row[i].style, isColored);
            if (i + 1 < row.size()) {
                const int missing = widths[i] - displayWidth(row[i].text);
                line += QString(std::max(missing, 0) + kGap, QLatin1Char(' '));
            }
        }
        while (line.endsWith(QLatin1Char(' '))) {
            line.chop(1);
        }
        text += line;
        text += QLatin1Char('\n');
    }
    return text;
}

// SPDX-License-Identifier: MIT
#include "parseCsv.h"

namespace
{

/// Walks the text once and puts the rows together.
class CKvCsvParser
{
public:
    explicit CKvCsvParser(const QString &text)
        : m_text(text)
    {
    }

    std::vector<CKvCsvRow> parse()
    {
        m_row.line = m_line;
        while (m_at < m_text.size()) {
            step();
        }
        endRow();
        return std::move(m_rows);
    }

private:
    void step()
    {
        const QChar character = m_text[m_at++];
        if (character == QLatin1Char('\n')) {
            ++m_line;
        }
        if (m_isQuoted) {
            stepQuoted(character);
        } else if (character == QLatin1Char('"') && m_cell.isEmpty()) {
            m_isQuoted = true;
            m_wasQuoted = true;
        } else if (character == QLatin1Char(',')) {
            endCell();
        } else if (character == QLatin1Char('\n')) {
            endRow();
        } else if (character != QLatin1Char('\r') || !isBeforeLineEnd()) {
            m_cell += character;
        }
    }

    void stepQuoted(QChar character)
    {
        const bool isQuote = character == QLatin1Char('"');
        if (isQuote && m_at < m_text.size() && m_text[m_at] == QLatin1Char('"')) {
            m_cell += character;
            ++m_at;
        } else if (isQuote) {
            m_isQuoted = false;
        } else {
            m_cell += character;
        }
    }

    bool isBeforeLineEnd() const
    {
        return m_at >= m_text.size() || m_text[m_at] == QLatin1Char('\n');
    }

    void endCell()
    {
        m_row.cells << m_cell;
        m_cell.clear();
        m_wasQuoted = false;
    }

    void endRow()
    {
        // A quoted empty cell makes a row, an empty line does not.
        if (!m_row.cells.isEmpty() || !m_cell.isEmpty() || m_wasQuoted) {
            endCell();
            m_rows.push_back(m_row);
        }
        m_row = CKvCsvRow();
        m_row.line = m_line;
    }

    const QString &m_text;
    int m_at = 0;
    int m_line = 1;
    bool m_isQuoted = false;
    bool m_wasQuoted = false;
    QString m_cell;
    CKvCsvRow m_row;
    std::vector<CKvCsvRow> m_rows;
};

} // namespace

std::vector<CKvCsvRow> parseCsv(const QString &text)
{
    return CKvCsvParser(text).parse();
}

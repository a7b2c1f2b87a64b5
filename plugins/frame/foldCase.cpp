// SPDX-License-Identifier: MIT
#include "foldCase.h"

QString foldCase(const QString &text)
{
    QString folded = text;
    for (int i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            // Letters outside the first plane have cases too; both forms are pairs.
            const uint letter = QChar::toCaseFolded(QChar::surrogateToUcs4(unit, text.at(i + 1)));
            folded[i] = QChar(QChar::highSurrogate(letter));
            folded[i + 1] = QChar(QChar::lowSurrogate(letter));
            ++i;
            continue;
        }
        const QChar letter = unit.toCaseFolded();
        if (letter != unit) {
            folded[i] = letter;
        }
    }
    return folded;
}

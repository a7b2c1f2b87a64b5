// SPDX-License-Identifier: MIT
#include "CKvNameIndex.h"

QString foldedName(const QString &name)
{
    bool isFolded = true;
    for (const QChar c : name) {
        // Lower-case ASCII and what has no case folds to itself; the rest is looked at below.
        if (c.unicode() >= 128 || (c.unicode() >= 'A' && c.unicode() <= 'Z')) {
            isFolded = false;
            break;
        }
    }
    if (isFolded) {
        return name;
    }
    QString folded;
    folded.reserve(name.size());
    for (int i = 0; i < name.size(); ++i) {
        const QChar c = name[i];
        if (c.isHighSurrogate() && i + 1 < name.size() && name[i + 1].isLowSurrogate()) {
            const uint point = QChar::toCaseFolded(QChar::surrogateToUcs4(c, name[++i]));
            folded.append(QChar(QChar::highSurrogate(point)));
            folded.append(QChar(QChar::lowSurrogate(point)));
        } else {
            folded.append(c.toCaseFolded());
        }
    }
    return folded;
}

CKvObjectSlot *CKvNameIndex::find(const QString &name) const
{
    return m_byFoldedName.value(foldedName(name));
}

bool CKvNameIndex::add(const QString &name, CKvObjectSlot *slot)
{
    CKvObjectSlot *&entry = m_byFoldedName[foldedName(name)];
    if (!entry) {
        entry = slot;
    }
    return entry == slot;
}

bool CKvNameIndex::remove(const QString &name, const CKvObjectSlot *slot)
{
    const auto entry = m_byFoldedName.find(foldedName(name));
    if (entry == m_byFoldedName.end() || entry.value() != slot) {
        return false;
    }
    m_byFoldedName.erase(entry);
    return true;
}

void CKvNameIndex::clear()
{
    m_byFoldedName.clear();
}

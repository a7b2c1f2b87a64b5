// SPDX-License-Identifier: MIT
#include "CKvString.h"
#include "auditText.h"
#include "foldCase.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

QString letter(uint codePoint)
{
    return QString::fromUcs4(&codePoint, 1);
}

bool areEqualWithoutCase(const QString &first, const QString &second)
{
    return CKvString(first).equalNoCase(CKvString(second));
}

} // namespace

TEST(FoldCase, LettersOfOneNameInAnyCaseAreTheSame)
{
    EXPECT_EQ(foldCase(QStringLiteral("Wände-Nord_01")), foldCase(QStringLiteral("WÄNDE-nord_01")));
}

TEST(FoldCase, ASharpSIsNotTwoOfThem)
{
    EXPECT_NE(foldCase(QStringLiteral("Straße")), foldCase(QStringLiteral("STRASSE")));
    EXPECT_EQ(foldCase(QStringLiteral("Straße")).size(), 6);
}

TEST(FoldCase, AnEmptyTextStaysEmpty)
{
    EXPECT_EQ(foldCase(QString()), QString());
}

TEST(FoldCase, HalvesOfPairsStandForThemselves)
{
    const QString lonelyHigh = QString(QChar(0xD801)) + QLatin1Char('A');
    const QString lonelyLow = QString(QChar(0xDC00)) + QLatin1Char('A');

    EXPECT_EQ(foldCase(lonelyHigh), QString(QChar(0xD801)) + QLatin1Char('a'));
    EXPECT_EQ(foldCase(lonelyLow), QString(QChar(0xDC00)) + QLatin1Char('a'));
    EXPECT_EQ(foldCase(QString(QChar(0xD801))), QString(QChar(0xD801)));
}

TEST(FoldCase, EveryLetterEqualsItsFoldedForm)
{
    for (uint codePoint = 1; codePoint <= QChar::LastValidCodePoint; ++codePoint) {
        if (QChar::isSurrogate(codePoint)) {
            continue;
        }
        const QString text = letter(codePoint);
        ASSERT_TRUE(areEqualWithoutCase(text, foldCase(text))) << codePoint;
    }
}

// Sorted by the comparison that users of the index rely on, letters that it calls equal are
// neighbours.
TEST(FoldCase, LettersAreTheSameAfterFoldingExactlyWhenTheComparisonCallsThemEqual)
{
    std::vector<QString> letters;
    for (uint codePoint = 1; codePoint <= 0x1E943; ++codePoint) {
        if (!QChar::isSurrogate(codePoint)) {
            letters.push_back(letter(codePoint));
        }
    }
    std::sort(letters.begin(), letters.end(), [](const QString &first, const QString &second) {
        return CKvString(first).compareNoCase(CKvString(second)) < 0;
    });

    for (std::size_t i = 1; i < letters.size(); ++i) {
        const QString &first = letters[i - 1];
        const QString &second = letters[i];
        ASSERT_EQ(areEqualWithoutCase(first, second), foldCase(first) == foldCase(second))
            << first.toStdString() << ' ' << second.toStdString();
    }
}

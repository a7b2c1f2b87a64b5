// SPDX-License-Identifier: MIT
#include "CKvJohabCodec.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

struct PairCase {
    const char *name;
    const char *bytes;
    ushort character;
};

class JohabPair : public testing::TestWithParam<PairCase>
{
};

// The first and the last of each range of the code page, and what its gaps divide.
const PairCase kPairCases[] = {
    { "FirstSyllable", "\x88\x61", 0xac00 },
    { "FinalBeforeTheGap", "\x88\x71", 0xac10 },
    { "FinalBehindTheGap", "\x88\x73", 0xac11 },
    { "LastSyllable", "\xd3\xbd", 0xd7a3 },
    { "FirstInitialAlone", "\x88\x41", 0x3131 },
    { "LastInitialAlone", "\xd0\x41", 0x314e },
    { "FirstVowelAlone", "\x84\x61", 0x314f },
    { "LastVowelAlone", "\x87\xa1", 0x3163 },
    { "FinalAlone", "\x84\x44", 0x3133 },
    { "FirstSymbol", "\xd9\x31", 0x3000 },
    { "SymbolInTheSecondHalfOfTheTrails", "\xd9\x91", 0x223d },
    { "OldLetter", "\xda\xd5", 0x3165 },
    { "LastOfTheCyrillicLetters", "\xde\xf1", 0x044f },
    { "FirstChineseCharacter", "\xe0\x31", 0x4f3d },
    { "LastChineseCharacter", "\xf9\xfe", 0x8a70 },
};

} // namespace

TEST_P(JohabPair, StandsForItsCharacter)
{
    const QString text = CKvJohabCodec::instance()->toUnicode(GetParam().bytes);

    ASSERT_EQ(text.size(), 1);
    EXPECT_EQ(text.at(0).unicode(), GetParam().character);
}

INSTANTIATE_TEST_SUITE_P(Named, JohabPair, testing::ValuesIn(kPairCases), [](const auto &row) {
    return std::string(row.param.name);
});

TEST(JohabCodec, EverySyllableHasAPairOfItsOwn)
{
    std::set<QByteArray> pairs;
    for (ushort syllable = 0xac00; syllable <= 0xd7a3; ++syllable) {
        const QByteArray pair = CKvJohabCodec::instance()->fromUnicode(QString(QChar(syllable)));

        ASSERT_EQ(CKvJohabCodec::instance()->toUnicode(pair).at(0).unicode(), syllable);
        pairs.insert(pair);
    }

    EXPECT_EQ(pairs.size(), 11172U);
}

TEST(JohabCodec, PairsOfNoCharacterShowAsReplacementCharacters)
{
    const QString text = CKvJohabCodec::instance()->toUnicode("\x88\x72z\xff\x41");

    EXPECT_EQ(text.toStdString(),
              "\ufffdrz\ufffd"
              "A");
}

TEST(JohabCodec, SaysWhatItCannotWrite)
{
    const QTextCodec *codec = CKvJohabCodec::instance();

    EXPECT_TRUE(codec->canEncode(QChar(0xac00)));
    EXPECT_FALSE(codec->canEncode(QChar(0x00e4)));
    EXPECT_EQ(codec->fromUnicode(QStringLiteral("a\u00e4")).toStdString(), "a?");
}

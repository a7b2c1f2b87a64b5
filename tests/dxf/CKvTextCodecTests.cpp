// SPDX-License-Identifier: MIT
#include "CKvTextCodec.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr const char *kR2004 = "AC1018";
constexpr const char *kR2007 = "AC1021";

std::string decoded(const CKvTextCodec &codec, std::string_view bytes)
{
    return codec.decode(bytes).toStdString();
}

std::string encoded(const CKvTextCodec &codec, const char16_t *text)
{
    return codec.encode(QString::fromUtf16(text));
}

CKvTextCodec western()
{
    return CKvTextCodec::forDrawing(kR2004, "ANSI_1252");
}

struct PageCase {
    const char *name;
    const char *codePage;
    const char *bytes;
    const char16_t *text;
};

class NamedCodePage : public testing::TestWithParam<PageCase>
{
};

const PageCase kPageCases[] = {
    { "Ansi1250", "ANSI_1250", "\xe8", u"\u010d" },
    { "Ansi1251", "ANSI_1251", "\xd1\xeb\xee\xe9", u"\u0421\u043b\u043e\u0439" },
    { "Ansi1252", "ANSI_1252", "\xe4\x80", u"\u00e4\u20ac" },
    { "Ansi1253", "ANSI_1253", "\xf3", u"\u03c3" },
    { "Ansi1254", "ANSI_1254", "\xfe", u"\u015f" },
    { "Ansi1255", "ANSI_1255", "\xf9", u"\u05e9" },
    { "Ansi1256", "ANSI_1256", "\xe1", u"\u0644" },
    { "Ansi1257", "ANSI_1257", "\xeb", u"\u0117" },
    { "Ansi1258", "ANSI_1258", "\xf5", u"\u01a1" },
    { "Ansi874", "ANSI_874", "\xa1", u"\u0e01" },
    { "Ansi932", "ANSI_932", "\x93\xfa\x96\x7b", u"\u65e5\u672c" },
    { "Ansi936", "ANSI_936", "\xcd\xbc\xb2\xe3", u"\u56fe\u5c42" },
    { "Ansi949", "ANSI_949", "\xb7\xb9\xc0\xcc", u"\ub808\uc774" },
    { "Ansi950", "ANSI_950", "\xb9\xcf\xbc\x68", u"\u5716\u5c64" },
    { "Ansi1361", "ANSI_1361", "\xd0\x65\x8b\x69", u"\ud55c\uae00" },
    { "Johab", "johab", "\xd0\x65\x8b\x69", u"\ud55c\uae00" },
    { "InLowerCase", "ansi_1251", "\xd1", u"\u0421" },
    { "WithBlanksAround", " ANSI_1251 ", "\xd1", u"\u0421" },
    { "WithAHyphen", "ansi-1251", "\xd1", u"\u0421" },
    { "Dos437", "dos437", "\x84", u"\u00e4" },
    { "Dos850", "dos850", "\x9b", u"\u00f8" },
    { "Dos850InUpperCase", "DOS850", "\x9b", u"\u00f8" },
    { "Dos852", "dos852", "\x9f", u"\u010d" },
    { "Dos866", "dos866", "\x80", u"\u0410" },
    { "Dos864", "dos864", "\xc7", u"\ufe8d" },
    { "Dos932", "dos932", "\x93\xfa", u"\u65e5" },
    { "Iso8859With1", "iso8859-1", "\xe4", u"\u00e4" },
    { "Iso8859With2", "ISO8859-2", "\xe8", u"\u010d" },
    { "Iso8859With9", "iso_8859-9", "\xfe", u"\u015f" },
    { "Iso8859WithANumberThatNoneHas", "iso8859-77", "\x80", u"\u20ac" },
    { "MacRoman", "MAC-ROMAN", "\x8a", u"\u00e4" },
    { "Gb2312", "gb2312", "\xcd\xbc", u"\u56fe" },
    { "Big5", "big5", "\xb9\xcf", u"\u5716" },
    { "Ksc5601", "ksc5601", "\xb7\xb9", u"\ub808" },
    { "AsciiIsWestern", "ASCII", "\xe4", u"\u00e4" },
    { "UndefinedIsWestern", "UNDEFINED", "\x80", u"\u20ac" },
    { "UnknownIsWestern", "ANSI_99999", "\x80", u"\u20ac" },
    { "AWordIsWestern", "klingon", "\x80", u"\u20ac" },
    { "EmptyIsWestern", "", "\x80", u"\u20ac" },
    { "AnEbcdicPageIsWestern", "dos37", "\x80", u"\u20ac" },
    { "Ansi1200IsUtf8SinceAFileOfBytesIsNotInUtf16", "ANSI_1200", "\xc3\xa4", u"\u00e4" },
    { "Utf8", "UTF-8", "\xc3\xa4", u"\u00e4" },
};

} // namespace

TEST_P(NamedCodePage, IsReadAndWrittenInADrawingOfR2004)
{
    const CKvTextCodec codec = CKvTextCodec::forDrawing(kR2004, GetParam().codePage);

    const std::string text = decoded(codec, GetParam().bytes);
    const std::string bytes = encoded(codec, GetParam().text);

    EXPECT_EQ(text, QString::fromUtf16(GetParam().text).toStdString());
    EXPECT_EQ(bytes, GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Named, NamedCodePage, testing::ValuesIn(kPageCases), [](const auto &row) {
    return std::string(row.param.name);
});

TEST(TextCodec, IsUtf8FromR2007OnWhateverTheCodePage)
{
    const std::string_view bytes = "W\xc3\xa4nde";

    EXPECT_EQ(decoded(CKvTextCodec::forDrawing(kR2007, "ANSI_936"), bytes), "W\u00e4nde");
    EXPECT_EQ(decoded(CKvTextCodec::forDrawing("AC1032", ""), bytes), "W\u00e4nde");
    EXPECT_EQ(CKvTextCodec::forDrawing(kR2007, "ANSI_936"), CKvTextCodec());
}

TEST(TextCodec, TakesTheCodePageInAVersionBeforeR2007OrOfNoKnownForm)
{
    const std::string_view bytes = "\xc3\xa4";

    for (const char *version : { "AC1018", "AC1009", "", "AC2.10", "AC10211", "MC0.0", "ac1032" }) {
        EXPECT_EQ(decoded(CKvTextCodec::forDrawing(version, "ANSI_1252"), bytes), "\u00c3\u00a4")
            << version;
    }
}

TEST(TextCodec, TwoNamesOfOneCodePageAreEqualAndOtherPagesAreNot)
{
    EXPECT_EQ(western(), CKvTextCodec::forDrawing(kR2004, "unknown"));
    EXPECT_EQ(CKvTextCodec::forDrawing(kR2004, "ANSI_936"),
              CKvTextCodec::forDrawing("AC1015", "gb2312"));
    EXPECT_FALSE(western() == CKvTextCodec::forDrawing(kR2004, "ANSI_1250"));
    EXPECT_FALSE(western() == CKvTextCodec());
}

TEST(TextCodec, BytesThatTheEncodingDoesNotKnowShowAsReplacementCharacters)
{
    EXPECT_EQ(decoded(CKvTextCodec(),
                      "a\xff"
                      "b"),
              "a\ufffd"
              "b");
    EXPECT_EQ(decoded(CKvTextCodec(), "a\xc3"), "a\ufffd");
    EXPECT_EQ(decoded(CKvTextCodec::forDrawing(kR2004, "ANSI_949"), "a\xb0 b"), "a\ufffd b");
}

TEST(TextCodec, AHalfCharacterAtTheEndIsNotLost)
{
    for (const char *codePage : { "ANSI_932", "ANSI_936", "ANSI_949", "ANSI_950", "ANSI_1361" }) {
        const CKvTextCodec codec = CKvTextCodec::forDrawing(kR2004, codePage);

        EXPECT_EQ(decoded(codec, "a\x95"), "a\ufffd") << codePage;
    }
}

TEST(TextCodec, ASecondByteThatLooksLikeABackslashBeginsNoEscape)
{
    const CKvTextCodec japanese = CKvTextCodec::forDrawing(kR2004, "ANSI_932");

    EXPECT_EQ(decoded(japanese, "\x95\x5cU+00E4"), "\u8868U+00E4");
    EXPECT_EQ(decoded(japanese, "\x95\x5c\\U+00E4"), "\u8868\u00e4");
    EXPECT_EQ(encoded(japanese, u"\u8868U+00E4"), "\x95\x5cU+00E4");
}

TEST(TextCodec, UnicodeEscapesAreReadInEveryVersion)
{
    for (const CKvTextCodec &codec : { CKvTextCodec(), western() }) {
        EXPECT_EQ(decoded(codec, "W\\U+00E4nde"), "W\u00e4nde");
        EXPECT_EQ(decoded(codec, "\\U+00e412"), "\u00e412");
        EXPECT_EQ(decoded(codec, "\\U+D83D\\U+DE00"), "\U0001f600");
        EXPECT_EQ(decoded(codec, "\\\\U+00E4"), "\\\u00e4");
    }
}

TEST(TextCodec, WhatIsAlmostAUnicodeEscapeStaysAsItIs)
{
    for (const char *text : { "\\U+00G4", "\\U+00E", "\\U+", "\\U00E4", "\\u+00E4", "\\", "\\P" }) {
        EXPECT_EQ(decoded(western(), text), text);
        EXPECT_EQ(decoded(CKvTextCodec(), text), text);
    }
}

TEST(TextCodec, MultibyteEscapesNameTheirCodePage)
{
    EXPECT_EQ(decoded(western(), "\\M+193FA"), "\u65e5");
    EXPECT_EQ(decoded(western(), "\\M+2B9CF"), "\u5716");
    EXPECT_EQ(decoded(western(), "\\M+3B7B9"), "\ub808");
    EXPECT_EQ(decoded(western(), "\\M+4D065"), "\ud55c");
    EXPECT_EQ(decoded(western(), "a\\M+5cdbcb"),
              "a\u56fe"
              "b");
    EXPECT_EQ(decoded(CKvTextCodec(), "\\M+193FA"), "\u65e5");
    EXPECT_EQ(decoded(western(), "\\M+100B1"), "\uff71");
}

TEST(TextCodec, WhatIsNoCharacterOfTheMultibyteEscapesCodePageStaysAsItIs)
{
    for (const char *text :
         { "\\M+093FA", "\\M+693FA", "\\M+1", "\\M+193F", "\\M+193FG", "\\M+", "\\M+193FF" }) {
        EXPECT_EQ(decoded(western(), text), text);
    }
}

TEST(TextCodec, CaretsStayAsTheyAre)
{
    EXPECT_EQ(decoded(western(), "^J^ ^M"), "^J^ ^M");
    EXPECT_EQ(encoded(western(), u"^J^ ^M"), "^J^ ^M");
}

TEST(TextCodec, WhatTheEncodingLacksIsWrittenAsUnicodeEscapes)
{
    EXPECT_EQ(encoded(western(), u"W\u00e4nde \u65e5"), "W\xe4nde \\U+65E5");
    EXPECT_EQ(encoded(western(), u"\U0001f600"), "\\U+D83D\\U+DE00");
    EXPECT_EQ(encoded(CKvTextCodec(), u"W\u00e4nde \u65e5\U0001f600"),
              "W\u00e4nde \u65e5\U0001f600");
}

TEST(TextCodec, NoLookalikeStandsForACharacterThatTheCodePageLacks)
{
    // A wide A, a Greek mu beside the micro sign, a joiner that shows nothing.
    EXPECT_EQ(encoded(western(), u"\uff21\u03bc\u200d"), "\\U+FF21\\U+03BC\\U+200D");
}

TEST(TextCodec, ATextThatHoldsTheCharactersOfAnEscapeComesBackAsItWas)
{
    EXPECT_EQ(encoded(western(), u"\\U+00E4"), "\\U+005CU+00E4");
    EXPECT_EQ(encoded(western(), u"\\M+193FA"), "\\U+005CM+193FA");
    EXPECT_EQ(decoded(western(), "\\U+005CU+00E4"), "\\U+00E4");
    EXPECT_EQ(encoded(western(), u"\\P\\\\pxqc;"), "\\P\\\\pxqc;");
}

TEST(TextCodec, WhatWouldEndTheLineIsWrittenAsAnEscape)
{
    const QString text = QStringLiteral("a\nb\rc\td") + QChar(0);

    EXPECT_EQ(western().encode(text), "a\\U+000Ab\\U+000Dc\td\\U+0000");
    EXPECT_EQ(CKvTextCodec().encode(text), "a\\U+000Ab\\U+000Dc\td\\U+0000");
}

TEST(TextCodec, BlanksAtTheEndsStay)
{
    EXPECT_EQ(decoded(western(), "  a \t"), "  a \t");
    EXPECT_EQ(encoded(western(), u"  a \t"), "  a \t");
    EXPECT_EQ(decoded(western(), ""), "");
    EXPECT_EQ(encoded(western(), u""), "");
}

// SPDX-License-Identifier: MIT
#include "CKvString.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

namespace
{

std::string utf8(const CKvString &text)
{
    return text.toQString().toStdString();
}

CKvString text(const char *utf8)
{
    return CKvString(QString::fromUtf8(utf8));
}

} // namespace

TEST(KvString, ComparesWithAndWithoutRegardToCase)
{
    const CKvString walls("Walls");

    EXPECT_NE(walls.compare(CKvString("WALLS")), 0);
    EXPECT_EQ(walls.compareNoCase(CKvString("WALLS")), 0);
    EXPECT_TRUE(walls.equalNoCase(CKvString("wALLS")));
    EXPECT_FALSE(walls.equalNoCase(CKvString("Wall")));
    EXPECT_LT(CKvString("A").compare(CKvString("B")), 0);
    EXPECT_GT(CKvString("b").compareNoCase(CKvString("A")), 0);
}

TEST(KvString, FoldsCharacterByCharacterSoSharpSIsNotSS)
{
    EXPECT_FALSE(text("MAß").equalNoCase(text("MASS")));
    EXPECT_TRUE(text("türen").equalNoCase(text("TÜREN")));
}

TEST(KvString, UpperCaseKeepsTheLength)
{
    CKvString street = text("straße");

    EXPECT_EQ(utf8(street.makeUpper()), "STRAßE");
}

TEST(KvString, LeftTakesAllWhenThereAreNoMore)
{
    EXPECT_EQ(utf8(CKvString("WALLS").left(3)), "WAL");
    EXPECT_EQ(utf8(CKvString("WALLS").left(9)), "WALLS");
    EXPECT_EQ(utf8(CKvString("WALLS").left(0)), "");
}

TEST(KvString, ReplaceTellsHowOftenItDid)
{
    CKvString path("C:\\std\\office.dws");

    EXPECT_EQ(path.replace(QLatin1Char('\\'), QLatin1Char('/')), 2);
    EXPECT_EQ(utf8(path), "C:/std/office.dws");
    EXPECT_EQ(path.replace(QLatin1Char('\\'), QLatin1Char('/')), 0);
}

TEST(KvString, FormatsNumbersAndTexts)
{
    CKvString formatted;

    EXPECT_EQ(utf8(formatted.formatA("%i of %s, %.4f", -7, "WALLS", 2.0)), "-7 of WALLS, 2.0000");
    EXPECT_EQ(utf8(formatted.formatA("%.4E", 1000000.0)), "1.0000E+06");
    EXPECT_EQ(utf8(formatted.formatA("%d", 0)), "0");
    EXPECT_EQ(utf8(formatted.formatA("nothing")), "nothing");
    EXPECT_EQ(utf8(formatted.formatA("%s", "")), "");
}

TEST(KvString, FormatATakesLatin1AndFormatTakesUtf8)
{
    CKvString formatted;

    EXPECT_EQ(utf8(formatted.formatA("%s", "T\xFCr")), "Tür");
    EXPECT_EQ(utf8(formatted.format("%s", "Tür")), "Tür");
}

TEST(KvString, FormatsALongTextWhole)
{
    const std::string name(5000, 'x');
    CKvString formatted;

    EXPECT_EQ(utf8(formatted.format("<%s>", name.c_str())), "<" + name + ">");
}

TEST(KvString, FormatsNumbersWithAFullStopWhateverTheLocaleOfTheProgram)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const char *german = nullptr;
    for (const char *name : { "de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "German" }) {
        german = german ? german : std::setlocale(LC_ALL, name);
    }
    if (!german) {
        GTEST_SKIP() << "No locale with a decimal comma is installed.";
    }
    CKvString formatted;

    formatted.formatA("%.4f", 0.5);
    std::setlocale(LC_ALL, before.c_str());

    EXPECT_EQ(utf8(formatted), "0.5000");
}

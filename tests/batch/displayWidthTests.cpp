// SPDX-License-Identifier: MIT
#include "displayWidth.h"

#include <gtest/gtest.h>

namespace
{

int widthOf(const char *utf8)
{
    return displayWidth(QString::fromUtf8(utf8));
}

} // namespace

TEST(DisplayWidth, OrdinaryCharactersTakeOneColumn)
{
    EXPECT_EQ(widthOf(""), 0);
    EXPECT_EQ(widthOf("WALLS"), 5);
    EXPECT_EQ(widthOf("Wände"), 5);
    EXPECT_EQ(widthOf("Стены"), 5);
    EXPECT_EQ(widthOf("ｶﾍﾞ"), 3);
}

TEST(DisplayWidth, EastAsianWideCharactersTakeTwo)
{
    EXPECT_EQ(widthOf("壁"), 2);
    EXPECT_EQ(widthOf("レイヤー"), 8);
    EXPECT_EQ(widthOf("벽"), 2);
    EXPECT_EQ(widthOf("ＷＡＬＬ"), 8);
    EXPECT_EQ(widthOf("𠮷"), 2);
    EXPECT_EQ(widthOf("😀"), 2);
    EXPECT_EQ(widthOf("、。"), 4);
}

TEST(DisplayWidth, CombiningAndInvisibleCharactersTakeNone)
{
    EXPECT_EQ(widthOf("a\xCC\x88"), 1);
    EXPECT_EQ(widthOf("a\xE2\x80\x8B"
                      "b"),
              2);
}

TEST(Printable, ShowsControlCharactersAndKeepsTheRest)
{
    EXPECT_EQ(printable(QStringLiteral("A\x1B[0m\n\tB\x7F")).toStdString(),
              "A\\x1b[0m\\x0a\\x09B\\x7f");
    EXPECT_EQ(printable(QStringLiteral("Wände 壁")).toStdString(), "Wände 壁");
}

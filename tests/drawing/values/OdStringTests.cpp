// SPDX-License-Identifier: MIT
#include "OdString.h"

#include <gtest/gtest.h>

namespace
{

OdString text(const char16_t *units)
{
    return OdString(QString::fromUtf16(units));
}

int signOf(int number)
{
    return number < 0 ? -1 : number > 0 ? 1 : 0;
}

} // namespace

TEST(String, EmptyIsEmptyHoweverItCameAbout)
{
    EXPECT_TRUE(OdString::kEmpty.isEmpty());
    EXPECT_EQ(OdString(), OdString::kEmpty);
    EXPECT_EQ(OdString(""), OdString::kEmpty);
    EXPECT_EQ(OdString(static_cast<const char *>(nullptr)), OdString::kEmpty);
    EXPECT_EQ(OdString(QStringLiteral("")), OdString::kEmpty);
    EXPECT_EQ(OdString::kEmpty.getLength(), 0);
}

TEST(String, LengthCountsUnits)
{
    EXPECT_EQ(text(u"a\u00e4").getLength(), 2);
    EXPECT_EQ(text(u"\U0001f600").getLength(), 2);
}

TEST(String, LiteralsOfTheSourcesAreLatin1)
{
    EXPECT_EQ(OdString("\xe4"), text(u"\u00e4"));
}

TEST(String, ComparesByUnit)
{
    EXPECT_EQ(signOf(OdString("a").compare(OdString("B"))), 1);
    EXPECT_EQ(signOf(OdString("a").compare(OdString("a"))), 0);
    EXPECT_EQ(signOf(OdString("a").compare(OdString("ab"))), -1);
    EXPECT_TRUE(OdString("B") < OdString("a"));
    EXPECT_FALSE(OdString("a") < OdString("a"));
    EXPECT_TRUE(OdString("a") != OdString("A"));
    EXPECT_TRUE(OdString("a") != OdString("a "));
}

TEST(String, ComparesWithoutRegardToCaseCharacterByCharacter)
{
    EXPECT_EQ(signOf(OdString("a").iCompare(OdString("B"))), -1);
    EXPECT_EQ(signOf(text(u"\u00c4rger").iCompare(text(u"\u00e4RGER"))), 0);
    EXPECT_EQ(signOf(text(u"\u0416").iCompare(text(u"\u0436"))), 0);
    EXPECT_NE(signOf(text(u"Stra\u00dfe").iCompare(text(u"STRASSE"))), 0);
}

// SPDX-License-Identifier: MIT
#include "OdDbHandle.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

std::string ascii(std::uint64_t value)
{
    return OdDbHandle(value).ascii().toQString().toStdString();
}

} // namespace

TEST(Handle, PrintsInUpperCaseHexadecimalWithoutLeadingZeros)
{
    EXPECT_EQ(ascii(0x2f), "2F");
    EXPECT_EQ(ascii(1), "1");
    EXPECT_EQ(ascii(0x7fffffffffffffff), "7FFFFFFFFFFFFFFF");
    EXPECT_EQ(ascii(0xfedcba9876543210), "FEDCBA9876543210");
    EXPECT_EQ(ascii(~std::uint64_t(0)), "FFFFFFFFFFFFFFFF");
}

TEST(Handle, NoneIsNullAndPrintsNothing)
{
    EXPECT_TRUE(OdDbHandle().isNull());
    EXPECT_TRUE(OdDbHandle(0).isNull());
    EXPECT_FALSE(OdDbHandle(1).isNull());
    EXPECT_EQ(ascii(0), "");
}

TEST(Handle, IsOrderedAsAnUnsignedNumber)
{
    EXPECT_TRUE(OdDbHandle(1) < OdDbHandle(0x8000000000000000));
    EXPECT_FALSE(OdDbHandle(1) < OdDbHandle(1));
    EXPECT_TRUE(OdDbHandle(1) == OdDbHandle(1));
    EXPECT_TRUE(OdDbHandle(1) != OdDbHandle(2));
    EXPECT_EQ(OdDbHandle(0xffff).value(), 0xffffU);
}

// SPDX-License-Identifier: MIT
#include "formatValue.h"

#include <gtest/gtest.h>

namespace
{

std::string formatted(const OdResBufPtr &value)
{
    return formatValue(value).toQString().toStdString();
}

} // namespace

TEST(PropertyValue, ATextIsShownAsItIs)
{
    const OdResBufPtr value = OdResBuf::newRb(OdResBuf::kRtString);
    value->setString(OdString(QStringLiteral(" 0.25 mm")));

    EXPECT_EQ(formatted(value), " 0.25 mm");
}

TEST(PropertyValue, AColourIsShownByItsName)
{
    const OdResBufPtr value = OdResBuf::newRb(OdResBuf::kRtColor);

    value->setColor(OdCmColor::byIndex(1));
    EXPECT_EQ(formatted(value), "red");
    value->setColor(OdCmColor::byColor(10, 20, 30, 8));
    EXPECT_EQ(formatted(value), "10,20,30");
}

TEST(PropertyValue, IntegersAndFlagsAreShownAsNumbers)
{
    const OdResBufPtr value32 = OdResBuf::newRb(OdResBuf::kRtInt32);
    value32->setInt32(-2000000000);
    const OdResBufPtr value16 = OdResBuf::newRb(OdResBuf::kRtInt16);
    value16->setInt16(-7);
    const OdResBufPtr value8 = OdResBuf::newRb(OdResBuf::kDxfInt8);
    value8->setInt8(3);
    const OdResBufPtr flag = OdResBuf::newRb(OdResBuf::kDxfBool);
    flag->setBool(true);

    EXPECT_EQ(formatted(value32), "-2000000000");
    EXPECT_EQ(formatted(value16), "-7");
    EXPECT_EQ(formatted(value8), "3");
    EXPECT_EQ(formatted(flag), "1");
}

TEST(PropertyValue, ARealHasFourDecimalsAlsoWhenItIsWhole)
{
    const OdResBufPtr value = OdResBuf::newRb(OdResBuf::kRtDouble);

    value->setDouble(2);
    EXPECT_EQ(formatted(value), "2.0000");
    value->setDouble(-0.123456);
    EXPECT_EQ(formatted(value), "-0.1235");
}

TEST(PropertyValue, NullAndAnUnknownTypeAreEmpty)
{
    const OdResBufPtr handle = OdResBuf::newRb(340);
    handle->setHandle(OdDbHandle(0x2F));

    EXPECT_EQ(formatted(OdResBufPtr()), "");
    EXPECT_EQ(formatted(OdResBuf::newRb()), "");
    EXPECT_EQ(formatted(handle), "");
}

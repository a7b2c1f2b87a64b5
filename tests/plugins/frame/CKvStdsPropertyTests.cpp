// SPDX-License-Identifier: MIT
#include "CKvStdsProperty.h"
#include "auditText.h"

#include <gtest/gtest.h>

TEST(StdsProperty, EachKindOfValueHasItsTypeCode)
{
    const CKvString name("Value");
    const OdCmColor color = OdCmColor::byColor(1, 2, 3, 4);

    const CKvStdsProperty text = CKvStdsProperty::text(name, CKvString("25"));
    const CKvStdsProperty colored = CKvStdsProperty::color(name, color);
    const CKvStdsProperty integer = CKvStdsProperty::integer(name, -70000);
    const CKvStdsProperty real = CKvStdsProperty::real(name, 0.25);
    const CKvStdsProperty flag = CKvStdsProperty::flag(name, true);

    EXPECT_EQ(text.name, name);
    EXPECT_EQ(text.value->restype(), 5005);
    EXPECT_EQ(text.value->getString(), OdString("25"));
    EXPECT_EQ(colored.value->restype(), 5011);
    EXPECT_EQ(colored.value->getColor(), color);
    EXPECT_EQ(integer.value->restype(), 5010);
    EXPECT_EQ(integer.value->getInt32(), -70000);
    EXPECT_EQ(real.value->restype(), 5001);
    EXPECT_EQ(real.value->getDouble(), 0.25);
    EXPECT_EQ(flag.value->restype(), 290);
    EXPECT_TRUE(flag.value->getBool());
}

TEST(StdsProperty, AValueIsOneBufferAndNoChain)
{
    EXPECT_TRUE(
        CKvStdsProperty::text(CKvString("Name"), CKvString("WALLS")).value->next().isNull());
}

TEST(StdsProperty, NoBufferReadsAsNothing)
{
    EXPECT_EQ(CKvStdsProperty::toText(OdResBufPtr()), CKvString());
    EXPECT_EQ(CKvStdsProperty::toColor(OdResBufPtr()), OdCmColor());
}

TEST(StdsProperty, NumbersAndFlagsAreReadBack)
{
    const CKvString name("N");

    EXPECT_EQ(CKvStdsProperty::toInteger(CKvStdsProperty::integer(name, -7).value), -7);
    EXPECT_EQ(CKvStdsProperty::toReal(CKvStdsProperty::real(name, 2.5).value), 2.5);
    EXPECT_TRUE(CKvStdsProperty::toFlag(CKvStdsProperty::flag(name, true).value));
    EXPECT_FALSE(CKvStdsProperty::toFlag(CKvStdsProperty::flag(name, false).value));
    EXPECT_EQ(CKvStdsProperty::toInteger(OdResBufPtr()), 0);
    EXPECT_EQ(CKvStdsProperty::toReal(OdResBufPtr()), 0);
    EXPECT_FALSE(CKvStdsProperty::toFlag(OdResBufPtr()));
}

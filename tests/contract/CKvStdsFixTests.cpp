// SPDX-License-Identifier: MIT
#include "CKvContractClasses.h"
#include "CKvDrawingBuilder.h"
#include "CKvStdsFix.h"
#include "auditText.h"
#include "drawingText.h"

#include "OdRxClass.h"

#include <gtest/gtest.h>

namespace
{

class StdsFix : public testing::Test
{
protected:
    CKvContractClasses m_classes;
};

} // namespace

TEST_F(StdsFix, ANewFixIsEmpty)
{
    const CKvStdsFixPtr fix = CKvStdsFix::createObject();

    EXPECT_EQ(fix->name(), CKvString());
    EXPECT_EQ(fix->objectName(), CKvString());
    EXPECT_TRUE(fix->objectId().isNull());
    EXPECT_EQ(fix->propertyCount(), 0);
    EXPECT_EQ(fix->standardsFile(), CKvString());
    EXPECT_EQ(fix->numRefs(), 1);
}

TEST_F(StdsFix, WhatWasSetIsGivenBack)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS");
    const OdDbDatabasePtr standards = builder.open();
    const OdDbObjectId id = recordId(standards->getLayerTableId(), "WALLS");
    const CKvStdsFixPtr fix = CKvStdsFix::createObject();

    fix->setName(CKvString("WALLS"));
    fix->setStandardsFile(CKvString("/standards/office.dxf"));
    fix->setObjectName(CKvString("WALLS OF THE FILE"));
    fix->setObjectId(id);

    EXPECT_EQ(fix->name(), CKvString("WALLS"));
    EXPECT_EQ(fix->standardsFile(), CKvString("/standards/office.dxf"));
    EXPECT_EQ(fix->objectName(), CKvString("WALLS OF THE FILE"));
    EXPECT_EQ(fix->objectId(), id);
}

TEST_F(StdsFix, APropertyIsTheVeryBufferThatWasAdded)
{
    const CKvStdsFixPtr fix = CKvStdsFix::createObject();
    const OdResBufPtr buffer = OdResBuf::newRb(OdResBuf::kRtInt32);

    fix->addProperty(CKvString("Dashes"), buffer);

    EXPECT_EQ(fix->property(CKvString("Dashes")), buffer);
    EXPECT_TRUE(fix->property(CKvString("dashes")).isNull());
    EXPECT_EQ(fix->propertyCount(), 1);
}

TEST_F(StdsFix, ASecondValueOfANameTakesTheFirstOnesPlace)
{
    const CKvStdsFixPtr fix = CKvStdsFix::createObject();
    const OdResBufPtr second = OdResBuf::newRb(OdResBuf::kRtInt32);

    fix->addProperty(CKvString("Dashes"), OdResBuf::newRb(OdResBuf::kRtInt32));
    fix->addProperty(CKvString("Dashes"), second);

    EXPECT_EQ(fix->property(CKvString("Dashes")), second);
    EXPECT_EQ(fix->propertyCount(), 1);
}

TEST_F(StdsFix, TheClassMakesFixes)
{
    const CKvStdsFixPtr made(CKvStdsFix::desc()->create());

    EXPECT_EQ(made->isA(), CKvStdsFix::desc());
    EXPECT_EQ(CKvStdsFix::desc()->nameUtf8(), "CKvStdsFix");
}

TEST_F(StdsFix, ASecondRegistrationIsRefused)
{
    try {
        CKvStdsFix::rxInit();
        FAIL() << "registered twice";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 313);
    }
}

TEST(StdsFixOutsideARun, NoFixIsMadeBeforeTheClassIsRegistered)
{
    try {
        CKvStdsFix::createObject();
        FAIL() << "made without a class";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 255);
    }
}

TEST(StdsFixOutsideARun, UnregisteringWhatIsNotRegisteredIsRefused)
{
    try {
        CKvStdsFix::rxUninit();
        FAIL() << "unregistered out of nothing";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 255);
    }
}

// SPDX-License-Identifier: MIT
#include "CKvContractClasses.h"
#include "CKvDrawingBuilder.h"
#include "CKvStdsError.h"
#include "auditText.h"
#include "drawingText.h"

#include "OdRxClass.h"

#include <gtest/gtest.h>

namespace
{

OdResBufPtr textBuffer(const char *text)
{
    OdResBufPtr buffer = OdResBuf::newRb(OdResBuf::kRtString);
    buffer->setString(OdString(text));
    return buffer;
}

class StdsError : public testing::Test
{
protected:
    CKvContractClasses m_classes;
};

} // namespace

TEST_F(StdsError, ANewViolationIsEmptyAndNotIgnored)
{
    const CKvStdsErrorPtr error = CKvStdsError::createObject();

    bool isIgnored = true;
    CKvString ignoredBy("somebody");
    error->ignoreState(isIgnored, ignoredBy);

    EXPECT_TRUE(error->objectId().isNull());
    EXPECT_EQ(error->objectType(), CKvString());
    EXPECT_EQ(error->message(), CKvString());
    EXPECT_EQ(error->objectName(), CKvString());
    EXPECT_TRUE(error->plugin().isNull());
    EXPECT_EQ(error->propertyCount(), 0);
    EXPECT_TRUE(error->properties().empty());
    EXPECT_FALSE(isIgnored);
    EXPECT_EQ(ignoredBy, CKvString());
}

TEST_F(StdsError, ANewViolationHasTheOneReferenceOfItsPointer)
{
    const CKvStdsErrorPtr error = CKvStdsError::createObject();

    EXPECT_EQ(error->numRefs(), 1);
}

TEST_F(StdsError, WhatWasSetIsGivenBack)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbObjectId id = recordId(drawing->getLayerTableId(), "WALLS");
    const CKvStdsErrorPtr error = CKvStdsError::createObject();

    error->setObjectId(id);
    error->setObjectType(CKvString("Layer"));
    error->setMessage(CKvString("Layer name is non-standard."));
    error->setObjectName(CKvString("WALLS"));
    error->setIgnoreState(true, CKvString("anna"));
    bool isIgnored = false;
    CKvString ignoredBy;
    error->ignoreState(isIgnored, ignoredBy);

    EXPECT_EQ(error->objectId(), id);
    EXPECT_EQ(error->objectType(), CKvString("Layer"));
    EXPECT_EQ(error->message(), CKvString("Layer name is non-standard."));
    EXPECT_EQ(error->objectName(), CKvString("WALLS"));
    EXPECT_TRUE(isIgnored);
    EXPECT_EQ(ignoredBy, CKvString("anna"));
}

TEST_F(StdsError, APropertyIsTheVeryBufferThatWasAdded)
{
    const CKvStdsErrorPtr error = CKvStdsError::createObject();
    const OdResBufPtr buffer = textBuffer("WALLS");

    error->addProperty(CKvString("Name"), buffer);

    EXPECT_EQ(error->property(CKvString("Name")), buffer);
    EXPECT_EQ(error->propertyCount(), 1);
}

TEST_F(StdsError, AnUnknownPropertyIsNull)
{
    const CKvStdsErrorPtr error = CKvStdsError::createObject();
    error->addProperty(CKvString("Name"), textBuffer("WALLS"));

    EXPECT_TRUE(error->property(CKvString("name")).isNull());
    EXPECT_TRUE(error->property(CKvString()).isNull());
}

TEST_F(StdsError, ASecondValueOfANameTakesTheFirstOnesPlace)
{
    const CKvStdsErrorPtr error = CKvStdsError::createObject();
    const OdResBufPtr second = textBuffer("DOORS");

    error->addProperty(CKvString("Name"), textBuffer("WALLS"));
    error->addProperty(CKvString("Name"), second);

    EXPECT_EQ(error->property(CKvString("Name")), second);
    EXPECT_EQ(error->propertyCount(), 1);
}

TEST_F(StdsError, PropertiesComeSortedByName)
{
    const CKvStdsErrorPtr error = CKvStdsError::createObject();

    for (const char *name : { "Name", "LineWeight", "LineColor", "LineStyle" }) {
        error->addProperty(CKvString(name), textBuffer(name));
    }

    EXPECT_EQ(propertiesText(error),
              "LineColor=LineColor LineStyle=LineStyle LineWeight=LineWeight Name=Name");
}

TEST_F(StdsError, TheMapIsACopyThatSharesItsBuffers)
{
    const CKvStdsErrorPtr error = CKvStdsError::createObject();
    const OdResBufPtr buffer = textBuffer("WALLS");
    error->addProperty(CKvString("Name"), buffer);

    std::map<CKvString, OdResBufPtr> properties = error->properties();
    const OdResBufPtr shared = properties[CKvString("Name")];
    properties.clear();

    EXPECT_EQ(shared, buffer);
    EXPECT_EQ(propertiesText(error), "Name=WALLS");
}

TEST_F(StdsError, ClearDropsThePropertiesAndNothingElse)
{
    const CKvStdsErrorPtr error = CKvStdsError::createObject();
    error->setObjectName(CKvString("WALLS"));
    error->addProperty(CKvString("Name"), textBuffer("WALLS"));

    error->clear();

    EXPECT_EQ(error->propertyCount(), 0);
    EXPECT_EQ(error->objectName(), CKvString("WALLS"));
}

TEST_F(StdsError, TheClassMakesViolations)
{
    const CKvStdsErrorPtr made(CKvStdsError::desc()->create());

    EXPECT_EQ(made->isA(), CKvStdsError::desc());
    EXPECT_EQ(CKvStdsError::desc()->nameUtf8(), "CKvStdsError");
    EXPECT_EQ(made->numRefs(), 1);
}

TEST_F(StdsError, ASecondRegistrationIsRefused)
{
    try {
        CKvStdsError::rxInit();
        FAIL() << "registered twice";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 313);
    }
    EXPECT_NE(CKvStdsError::desc(), nullptr);
}

TEST(StdsErrorOutsideARun, NoViolationIsMadeBeforeTheClassIsRegistered)
{
    try {
        CKvStdsError::createObject();
        FAIL() << "made without a class";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 255);
    }
}

TEST(StdsErrorOutsideARun, UnregisteringWhatIsNotRegisteredIsRefused)
{
    try {
        CKvStdsError::rxUninit();
        FAIL() << "unregistered out of nothing";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 255);
    }
}

TEST(StdsErrorOutsideARun, TheClassCanBeRegisteredAgain)
{
    CKvStdsError::rxInit();
    CKvStdsError::rxUninit();
    CKvStdsError::rxInit();

    EXPECT_EQ(CKvStdsError::createObject()->propertyCount(), 0);

    CKvStdsError::rxUninit();
    EXPECT_EQ(CKvStdsError::desc(), nullptr);
}

// SPDX-License-Identifier: MIT
#include "OdRxClass.h"

#include "OdResBuf.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

OdRxClass *registerClass(const char *name,
                         OdRxClass *parent = OdRxObject::desc(),
                         OdPseudoConstructor constructor = nullptr)
{
    return newOdRxClass(OdString(name),
                        parent,
                        constructor,
                        0,
                        0,
                        0,
                        OdString::kEmpty,
                        OdString::kEmpty,
                        nullptr,
                        0);
}

OdRxObjectPtr makeBuffer()
{
    return OdResBuf::newRb(7);
}

// @return the code of the error, 0 for none.
template <class Action> int codeOf(Action action)
{
    try {
        action();
    } catch (const OdError &error) {
        return error.code();
    }
    return 0;
}

} // namespace

TEST(RxClass, ARegisteredClassKeepsWhatItWasGiven)
{
    OdRxClass *rxClass = newOdRxClass(OdString("TestShape"),
                                      OdResBuf::desc(),
                                      &makeBuffer,
                                      1,
                                      2,
                                      3,
                                      OdString("SHAPE"),
                                      OdString("tests"),
                                      nullptr,
                                      4);

    EXPECT_EQ(rxClass->name(), OdString("TestShape"));
    EXPECT_EQ(rxClass->nameUtf8(), "TestShape");
    EXPECT_EQ(rxClass->dxfName(), OdString("SHAPE"));
    EXPECT_EQ(rxClass->myParent(), OdResBuf::desc());
    EXPECT_EQ(OdResBufPtr(rxClass->create())->restype(), 7);
    EXPECT_EQ(rxClass->isA(), OdRxClass::desc());
    deleteOdRxClass(rxClass);
}

TEST(RxClass, WithoutAConstructorIsAbstract)
{
    OdRxClass *rxClass = registerClass("TestAbstract");

    EXPECT_TRUE(rxClass->create().isNull());
    deleteOdRxClass(rxClass);
}

TEST(RxClass, WithoutAParentDerivesFromTheRoot)
{
    OdRxClass *rxClass = registerClass("TestOrphan", nullptr);

    EXPECT_EQ(rxClass->myParent(), OdRxObject::desc());
    deleteOdRxClass(rxClass);
}

TEST(RxClass, DerivesFromItselfAndItsAncestorsOnly)
{
    OdRxClass *parent = registerClass("TestParent");
    OdRxClass *child = registerClass("TestChild", parent);

    EXPECT_TRUE(child->isDerivedFrom(child));
    EXPECT_TRUE(child->isDerivedFrom(parent));
    EXPECT_TRUE(child->isDerivedFrom(OdRxObject::desc()));
    EXPECT_FALSE(parent->isDerivedFrom(child));
    EXPECT_FALSE(child->isDerivedFrom(OdResBuf::desc()));
    EXPECT_FALSE(child->isDerivedFrom(nullptr));
    deleteOdRxClass(child);
    deleteOdRxClass(parent);
}

TEST(RxClass, ASecondRegistrationOfANameThrows313AndLeavesTheFirst)
{
    OdRxClass *rxClass = registerClass("TestTwice");

    EXPECT_EQ(codeOf([] { registerClass("TestTwice"); }), 313);

    EXPECT_EQ(rxClass->name(), OdString("TestTwice"));
    deleteOdRxClass(rxClass);
}

TEST(RxClass, NamesThatDifferInCaseAreTwoClasses)
{
    OdRxClass *lower = registerClass("testcase");
    OdRxClass *upper = registerClass("TESTCASE");

    EXPECT_NE(lower, upper);
    deleteOdRxClass(lower);
    deleteOdRxClass(upper);
}

TEST(RxClass, CanBeRegisteredAgainAfterItWasTakenAway)
{
    deleteOdRxClass(registerClass("TestAgain"));

    OdRxClass *again = registerClass("TestAgain");

    EXPECT_EQ(again->name(), OdString("TestAgain"));
    deleteOdRxClass(again);
}

TEST(RxClass, TakingAwayNothingThrows255)
{
    EXPECT_EQ(codeOf([] { deleteOdRxClass(nullptr); }), 255);
}

TEST(RxClass, TakingAwayWhatIsNotRegisteredThrows255)
{
    OdRxClass *rxClass = registerClass("TestGone");
    deleteOdRxClass(rxClass);
    OdRxClass stranger(OdString("TestStranger"), OdRxObject::desc(), nullptr, OdString());

    EXPECT_EQ(codeOf([&] { deleteOdRxClass(rxClass); }), 255);
    EXPECT_EQ(codeOf([&] { deleteOdRxClass(&stranger); }), 255);
}

TEST(RxClass, TheLibrarysOwnClassesStay)
{
    EXPECT_EQ(codeOf([] { deleteOdRxClass(OdRxObject::desc()); }), 255);

    EXPECT_EQ(OdRxObject::desc()->nameUtf8(), "OdRxObject");
    EXPECT_EQ(OdRxObject::desc()->myParent(), nullptr);
    EXPECT_EQ(OdRxClass::desc()->myParent(), OdRxObject::desc());
    EXPECT_EQ(OdRxClass::desc()->isA(), OdRxClass::desc());
}

TEST(RxClass, AClassThatSomebodyHoldsOutlivesItsRegistration)
{
    const OdSmartPtr<OdRxClass> held(registerClass("TestHeld"));

    deleteOdRxClass(held.get());

    EXPECT_EQ(held->nameUtf8(), "TestHeld");
    EXPECT_EQ(held->numRefs(), 1);
}

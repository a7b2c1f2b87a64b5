// SPDX-License-Identifier: MIT
#include "CKvStdsPlugins.h"

#include <gtest/gtest.h>

TEST(StdsPlugins, TheClassIsAbstract)
{
    CKvStdsPlugins::rxInit();

    EXPECT_EQ(CKvStdsPlugins::desc()->nameUtf8(), "CKvStdsPlugins");
    EXPECT_EQ(CKvStdsPlugins::desc()->myParent(), OdRxObject::desc());
    EXPECT_TRUE(CKvStdsPlugins::desc()->create().isNull());

    CKvStdsPlugins::rxUninit();
}

TEST(StdsPlugins, ASecondRegistrationIsRefused)
{
    CKvStdsPlugins::rxInit();

    try {
        CKvStdsPlugins::rxInit();
        ADD_FAILURE() << "registered twice";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 313);
    }

    CKvStdsPlugins::rxUninit();
}

TEST(StdsPlugins, UnregisteringWhatIsNotRegisteredIsRefused)
{
    try {
        CKvStdsPlugins::rxUninit();
        FAIL() << "unregistered out of nothing";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 255);
    }
}

// SPDX-License-Identifier: MIT
#include "CKvStandaloneServices.h"

#include <gtest/gtest.h>

TEST(SystemServices, AreNullBeforeAHostGivesThem)
{
    EXPECT_EQ(GetKvSystemServices(), nullptr);
}

TEST(SystemServices, AreThoseOfTheProgramWhileItsObjectLives)
{
    {
        CKvStandaloneServices outer;
        EXPECT_EQ(GetKvSystemServices(), &outer);
        {
            CKvStandaloneServices inner;
            EXPECT_EQ(GetKvSystemServices(), &inner);
        }
        EXPECT_EQ(GetKvSystemServices(), &outer);
    }

    EXPECT_EQ(GetKvSystemServices(), nullptr);
}

TEST(SystemServices, SettingsAreThoseThatTheProgramSets)
{
    CKvStandaloneServices services;
    CKvStandaloneSettings &settings = *services.standardsSettings();
    EXPECT_TRUE(settings.preferredStandardsFile().isEmpty());
    EXPECT_FALSE(settings.fixAutomatically());
    EXPECT_FALSE(settings.showIgnored());

    settings.setPreferredStandardsFile(CKvString("/std/office.dws"));
    settings.setFixAutomatically(true);
    settings.setShowIgnored(true);

    EXPECT_TRUE(settings.preferredStandardsFile() == CKvString("/std/office.dws"));
    EXPECT_TRUE(settings.fixAutomatically());
    EXPECT_TRUE(settings.showIgnored());
}

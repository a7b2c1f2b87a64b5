// SPDX-License-Identifier: MIT
#include "CKvContractClasses.h"
#include "CKvStdsViolation.h"
#include "auditText.h"

#include <gtest/gtest.h>

TEST(StdsViolation, ANewEntryHoldsNothing)
{
    const CKvStdsViolation violation;

    EXPECT_TRUE(violation.error.isNull());
    EXPECT_TRUE(violation.plugin.isNull());
    EXPECT_TRUE(violation.fixes.isEmpty());
    EXPECT_EQ(violation.recommendedFix, -1);
    EXPECT_EQ(violation.ignoredBy, CKvString());
    EXPECT_FALSE(violation.fixedAutomatically);
    EXPECT_FALSE(violation.ignored);
    EXPECT_FALSE(violation.fixedManually);
}

TEST(StdsViolation, ACopySharesTheViolationAndTheCandidates)
{
    const CKvContractClasses classes;
    CKvStdsViolation violation;
    violation.error = CKvStdsError::createObject();
    violation.fixes.append(CKvStdsFix::createObject());

    const CKvStdsViolation copy = violation;

    EXPECT_EQ(copy.error, violation.error);
    EXPECT_TRUE(copy.fixes.sharesWith(violation.fixes));
}

// SPDX-License-Identifier: MIT
#include "OdResBuf.h"

#include "OdRxClass.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace
{

std::vector<int> typesFrom(const OdResBufPtr &head)
{
    std::vector<int> types;
    for (OdResBufPtr buffer = head; buffer; buffer = buffer->next()) {
        types.push_back(buffer->restype());
    }
    return types;
}

OdResBufPtr chain(std::initializer_list<int> types)
{
    OdResBufPtr head;
    for (const int type : types) {
        OdResBufPtr buffer = OdResBuf::newRb(type);
        if (head) {
            head->last()->setNext(buffer);
        } else {
            head = buffer;
        }
    }
    return head;
}

} // namespace

TEST(ResBuf, ANewOneHasNoTypeNoValueAndNothingBehindIt)
{
    const OdResBufPtr buffer = OdResBuf::newRb();

    EXPECT_EQ(buffer->restype(), OdResBuf::kRtNoType);
    EXPECT_TRUE(buffer->next().isNull());
    EXPECT_EQ(buffer->numRefs(), 1);
    EXPECT_EQ(buffer->isA(), OdResBuf::desc());
}

TEST(ResBuf, ItsClassMakesBuffers)
{
    const OdResBufPtr buffer(OdResBuf::desc()->create());

    EXPECT_EQ(buffer->numRefs(), 1);
    EXPECT_EQ(OdResBuf::desc()->nameUtf8(), "OdResBuf");
    EXPECT_EQ(OdResBuf::desc()->myParent(), OdRxObject::desc());
}

TEST(ResBuf, GivesBackTheValueThatWasSet)
{
    const OdResBufPtr buffer = OdResBuf::newRb(1);

    buffer->setString(OdString("text"));
    EXPECT_EQ(buffer->getString(), OdString("text"));
    buffer->setDouble(0.25);
    EXPECT_EQ(buffer->getDouble(), 0.25);
    buffer->setInt8(-5);
    EXPECT_EQ(buffer->getInt8(), -5);
    buffer->setInt16(-30000);
    EXPECT_EQ(buffer->getInt16(), -30000);
    buffer->setInt32(std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(buffer->getInt32(), std::numeric_limits<std::int32_t>::min());
    buffer->setInt64(std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(buffer->getInt64(), std::numeric_limits<std::int64_t>::max());
    buffer->setBool(true);
    EXPECT_TRUE(buffer->getBool());
    buffer->setColor(OdCmColor::byIndex(3));
    EXPECT_TRUE(buffer->getColor() == OdCmColor::byIndex(3));
    buffer->setHandle(OdDbHandle(0x2f));
    EXPECT_TRUE(buffer->getHandle() == OdDbHandle(0x2f));
    EXPECT_EQ(buffer->restype(), 1);
}

TEST(ResBuf, AGetterOfAnotherTypeGivesTheEmptyValue)
{
    const OdResBufPtr text = OdResBuf::newRb(OdResBuf::kRtString);
    text->setString(OdString("12"));
    const OdResBufPtr number = OdResBuf::newRb(OdResBuf::kRtInt32);
    number->setInt32(12);

    EXPECT_EQ(text->getDouble(), 0.0);
    EXPECT_EQ(text->getInt8(), 0);
    EXPECT_EQ(text->getInt16(), 0);
    EXPECT_EQ(text->getInt32(), 0);
    EXPECT_EQ(text->getInt64(), 0);
    EXPECT_FALSE(text->getBool());
    EXPECT_TRUE(text->getColor().isByLayer());
    EXPECT_TRUE(text->getHandle().isNull());
    EXPECT_TRUE(number->getString().isEmpty());
    EXPECT_EQ(number->getDouble(), 0.0);
    EXPECT_EQ(OdResBuf::newRb()->getInt32(), 0);
    EXPECT_TRUE(OdResBuf::newRb()->getString().isEmpty());
}

TEST(ResBuf, NarrowGettersTakeTheLowBitsOfAWideValue)
{
    const OdResBufPtr buffer = OdResBuf::newRb(OdResBuf::kRtInt32);
    buffer->setInt32(0x12345);

    EXPECT_EQ(buffer->getInt16(), 0x2345);
    EXPECT_EQ(buffer->getInt8(), 0x45);
}

TEST(ResBuf, LastIsTheEndOfTheChainAndTheBufferItselfWhenNothingFollows)
{
    const OdResBufPtr head = chain({ 1, 2, 3 });

    EXPECT_EQ(head->last()->restype(), 3);
    EXPECT_EQ(head->last()->last(), head->last());
    EXPECT_EQ(head->next()->last()->restype(), 3);
}

TEST(ResBuf, InsertPutsABufferDirectlyBehindThisOne)
{
    const OdResBufPtr head = chain({ 1, 2 });

    head->insert(OdResBuf::newRb(90));
    head->insert(OdResBuf::newRb(300));

    EXPECT_EQ(typesFrom(head), (std::vector<int> { 1, 300, 90, 2 }));
}

TEST(ResBuf, InsertAtTheEndAppends)
{
    const OdResBufPtr head = chain({ 1 });

    head->last()->insert(OdResBuf::newRb(2));
    head->last()->insert(OdResBuf::newRb(3));

    EXPECT_EQ(typesFrom(head), (std::vector<int> { 1, 2, 3 }));
}

TEST(ResBuf, InsertTakesAChainInAsAWhole)
{
    const OdResBufPtr head = chain({ 1, 2 });

    head->insert(chain({ 10, 11, 12 }));

    EXPECT_EQ(typesFrom(head), (std::vector<int> { 1, 10, 11, 12, 2 }));
}

TEST(ResBuf, InsertOfNothingOrOfItselfChangesNothing)
{
    const OdResBufPtr head = chain({ 1, 2 });

    head->insert(OdResBufPtr());
    head->insert(head);

    EXPECT_EQ(typesFrom(head), (std::vector<int> { 1, 2 }));
}

TEST(ResBuf, AChainLastsAsLongAsSomebodyHoldsPartOfIt)
{
    OdResBufPtr head = chain({ 1, 2, 3 });
    const OdResBufPtr second = head->next();
    ASSERT_EQ(second->numRefs(), 2);

    head.release();

    EXPECT_EQ(second->numRefs(), 1);
    EXPECT_EQ(typesFrom(second), (std::vector<int> { 2, 3 }));
}

TEST(ResBuf, AVeryLongChainIsReleasedWithoutUsingUpTheStack)
{
    OdResBufPtr head = OdResBuf::newRb(0);
    for (int i = 1; i < 1000000; ++i) {
        OdResBufPtr buffer = OdResBuf::newRb(i);
        buffer->setNext(head);
        head = buffer;
    }
    const OdResBufPtr end = head->last();

    head.release();

    EXPECT_EQ(end->numRefs(), 1);
    EXPECT_EQ(end->restype(), 0);
}

// SPDX-License-Identifier: MIT
#include "OdRxObject.h"

#include "OdDbDatabaseReactor.h"
#include "OdDbIdMapping.h"
#include "OdResBuf.h"
#include "OdRxClass.h"
#include "OdStaticRxObject.h"
#include "odrxAlloc.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace
{

// Counts its living instances.
class CKvCounted : public OdRxObject
{
public:
    CKvCounted() { ++s_living; }
    ~CKvCounted() override { --s_living; }

    static int s_living;
};
int CKvCounted::s_living = 0;

OdRxObjectPtr newBuffer()
{
    return OdRxObjectPtr(OdResBuf::newRb(1));
}

} // namespace

TEST(RxObject, BeginsWithOneReferenceAndGoesWithTheLast)
{
    auto *object = new CKvCounted;
    EXPECT_EQ(object->numRefs(), 1);

    object->addRef();
    EXPECT_EQ(object->numRefs(), 2);
    object->release();
    EXPECT_EQ(CKvCounted::s_living, 1);
    object->release();

    EXPECT_EQ(CKvCounted::s_living, 0);
}

TEST(RxObject, HasTheRootsClassAndNoCopyUnlessItSaysOtherwise)
{
    const OdSmartPtr<CKvCounted> object(new CKvCounted, kOdRxObjAttach);

    EXPECT_EQ(object->isA(), OdRxObject::desc());
    EXPECT_TRUE(object->isKindOf(OdRxObject::desc()));
    EXPECT_TRUE(object->clone().isNull());
}

TEST(RxObject, QueryGivesAReferenceOfItsOwnForAClassOfItsLine)
{
    const OdResBufPtr buffer = OdResBuf::newRb();

    OdRxObject *asRoot = buffer->queryX(OdRxObject::desc());
    OdRxObject *asMapping = buffer->queryX(OdDbIdMapping::desc());
    OdRxObject *asNothing = buffer->queryX(nullptr);

    EXPECT_EQ(asRoot, buffer.get());
    EXPECT_EQ(buffer->numRefs(), 2);
    EXPECT_EQ(asMapping, nullptr);
    EXPECT_EQ(asNothing, nullptr);
    asRoot->release();
}

TEST(RxObject, MemoryThatThereIsNotIsABadAllocation)
{
    EXPECT_THROW(OdRxObject::operator new(SIZE_MAX), OdBadAllocation);
    EXPECT_EQ(odrxAlloc(SIZE_MAX), nullptr);
    EXPECT_STREQ(OdBadAllocation().what(), "bad allocation");
}

TEST(RxObject, MemoryOfTheHostCanBeFreedAndFreeingNothingIsHarmless)
{
    auto *bytes = static_cast<char *>(odrxAlloc(4));
    bytes[3] = 'x';

    EXPECT_EQ(bytes[3], 'x');
    odrxFree(bytes);
    odrxFree(nullptr);
}

TEST(SmartPtr, CountsReferences)
{
    OdSmartPtr<CKvCounted> first(new CKvCounted, kOdRxObjAttach);
    {
        OdSmartPtr<CKvCounted> second;
        second = first;
        EXPECT_EQ(first->numRefs(), 2);
        EXPECT_TRUE(first == second);
    }
    EXPECT_EQ(first->numRefs(), 1);

    const OdSmartPtr<CKvCounted> moved = std::move(first);

    EXPECT_EQ(moved->numRefs(), 1);
    EXPECT_EQ(CKvCounted::s_living, 1);
}

TEST(SmartPtr, LetsGoOnReleaseAndOnAssignment)
{
    OdSmartPtr<CKvCounted> pointer(new CKvCounted, kOdRxObjAttach);

    pointer = OdSmartPtr<CKvCounted>(new CKvCounted, kOdRxObjAttach);
    EXPECT_EQ(CKvCounted::s_living, 1);
    pointer.release();

    EXPECT_EQ(CKvCounted::s_living, 0);
    EXPECT_TRUE(pointer.isNull());
    EXPECT_FALSE(bool(pointer));
}

TEST(SmartPtr, AssignedToItselfStays)
{
    OdSmartPtr<CKvCounted> pointer(new CKvCounted, kOdRxObjAttach);
    const OdSmartPtr<CKvCounted> &same = pointer;

    pointer = same;

    EXPECT_EQ(pointer->numRefs(), 1);
}

TEST(SmartPtr, GivesItsReferenceAwayOnDetach)
{
    OdSmartPtr<CKvCounted> pointer(new CKvCounted, kOdRxObjAttach);

    CKvCounted *object = pointer.detach();

    EXPECT_TRUE(pointer.isNull());
    EXPECT_EQ(object->numRefs(), 1);
    object->release();
}

TEST(SmartPtr, ConvertsToABaseWithoutACast)
{
    const OdResBufPtr buffer = OdResBuf::newRb();

    const OdRxObjectPtr object = buffer;

    EXPECT_EQ(object.get(), buffer.get());
    EXPECT_EQ(buffer->numRefs(), 2);
}

TEST(SmartPtr, ConvertsToADerivedClassThatTheObjectIsOf)
{
    const OdRxObjectPtr object = newBuffer();

    const OdResBufPtr buffer(object);

    EXPECT_EQ(buffer->restype(), 1);
    EXPECT_EQ(object->numRefs(), 2);
}

TEST(SmartPtr, ConversionToAClassThatTheObjectIsNotOfThrows)
{
    const OdRxObjectPtr object = newBuffer();

    try {
        const OdDbIdMappingPtr mapping(object);
        FAIL() << "no exception";
    } catch (const OdError_NotThatKindOfClass &error) {
        EXPECT_STREQ(error.what(), "An object of class OdResBuf is no OdDbIdMapping.");
    }
    EXPECT_EQ(object->numRefs(), 1);
}

TEST(SmartPtr, NullConvertsToNull)
{
    const OdRxObjectPtr null;

    const OdResBufPtr buffer(null);

    EXPECT_TRUE(buffer.isNull());
    EXPECT_TRUE(OdResBufPtr(nullptr).isNull());
}

TEST(StaticRxObject, CountsNoReferences)
{
    OdStaticRxObject<CKvCounted> object;
    {
        const OdSmartPtr<CKvCounted> pointer(&object);
        OdSmartPtr<CKvCounted> other;
        other = pointer;
        EXPECT_EQ(object.numRefs(), 1);
    }

    EXPECT_EQ(object.numRefs(), 1);
    EXPECT_EQ(CKvCounted::s_living, 1);
}

TEST(StaticRxObject, AnswersQueriesAsItsBase)
{
    OdStaticRxObject<OdDbDatabaseReactor> reactor;

    EXPECT_EQ(reactor.isA(), OdDbDatabaseReactor::desc());
    EXPECT_EQ(reactor.queryX(OdDbDatabaseReactor::desc()), &reactor);
    EXPECT_EQ(reactor.queryX(OdResBuf::desc()), nullptr);
}

TEST(DatabaseReactor, DoesNothingByItself)
{
    OdStaticRxObject<OdDbDatabaseReactor> reactor;

    reactor.objectAppended(nullptr, nullptr);
    reactor.objectUnAppended(nullptr, nullptr);
    reactor.objectReAppended(nullptr, nullptr);
    reactor.objectOpenedForModify(nullptr, nullptr);
    reactor.objectModified(nullptr, nullptr);
    reactor.objectErased(nullptr, nullptr, /*isErased*/ true);

    EXPECT_EQ(reactor.numRefs(), 1);
}

// SPDX-License-Identifier: MIT
#pragma once

#include "OdSmartPtr.h"
#include "hostApi.h"

#include <atomic>
#include <cstddef>

class OdRxClass;
class OdRxObject;
using OdRxObjectPtr = OdSmartPtr<OdRxObject>;

/// Base of everything that has a run-time class. Objects are counted: a new one has one reference,
/// and goes when the last is released. Allocated through odrxAlloc.
class KV_HOST_API OdRxObject
{
public:
    OdRxObject();
    virtual ~OdRxObject();
    OdRxObject(const OdRxObject &) = delete;
    OdRxObject &operator=(const OdRxObject &) = delete;

    /// @throws OdBadAllocation when there is no memory.
    static void *operator new(std::size_t bytes);
    static void *operator new(std::size_t, void *place) noexcept { return place; }
    static void operator delete(void *memory) noexcept;

    static OdRxClass *desc();

    virtual void addRef();
    virtual void release();
    long numRefs() const { return m_references; }

    /// @return this object with a reference of its own when it is of that class, otherwise null.
    virtual OdRxObject *queryX(const OdRxClass *wanted) const;
    /// The object's own class, never null.
    virtual OdRxClass *isA() const;
    bool isKindOf(const OdRxClass *wanted) const;
    /// A copy that belongs to no drawing, or null for a class that can't be copied.
    virtual OdRxObjectPtr clone() const;

private:
    std::atomic<long> m_references { 1 };
};

// SPDX-License-Identifier: MIT
#include "OdRxObject.h"

#include "OdRxClass.h"
#include "odrxAlloc.h"

OdRxObject::OdRxObject() = default;

OdRxObject::~OdRxObject() = default;

void *OdRxObject::operator new(std::size_t bytes)
{
    void *memory = odrxAlloc(bytes);
    if (!memory) {
        throw OdBadAllocation();
    }
    return memory;
}

void OdRxObject::operator delete(void *memory) noexcept
{
    odrxFree(memory);
}

OdRxClass *OdRxObject::desc()
{
    static OdRxClass s_class(OdString("OdRxObject"), nullptr, nullptr, OdString());
    return &s_class;
}

void OdRxObject::addRef()
{
    m_references.fetch_add(1, std::memory_order_relaxed);
}

void OdRxObject::release()
{
    // Nobody can add to the only reference but who holds it, so the last one needs no locked step.
    if (m_references.load(std::memory_order_acquire) == 1
        || m_references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        delete this;
    }
}

OdRxObject *OdRxObject::queryX(const OdRxClass *wanted) const
{
    if (!isKindOf(wanted)) {
        return nullptr;
    }
    // The platform's casts take constant objects and give changeable ones.
    auto *found = const_cast<OdRxObject *>(this);
    found->addRef();
    return found;
}

OdRxClass *OdRxObject::isA() const
{
    return desc();
}

bool OdRxObject::isKindOf(const OdRxClass *wanted) const
{
    return isA()->isDerivedFrom(wanted);
}

OdRxObjectPtr OdRxObject::clone() const
{
    return {};
}

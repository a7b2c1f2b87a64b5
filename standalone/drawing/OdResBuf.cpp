// SPDX-License-Identifier: MIT
#include "OdResBuf.h"

#include "OdRxClass.h"
#include "rxConstruction.h"

OdResBuf::~OdResBuf()
{
    // One buffer after the other: each releasing the next from within would use up the stack on a
    // long chain. A rest that somebody else holds stays as it is.
    OdResBufPtr rest = std::move(m_next);
    while (rest && rest->numRefs() == 1) {
        OdResBufPtr behind = std::move(rest->m_next);
        rest = std::move(behind);
    }
}

OdRxClass *OdResBuf::desc()
{
    static OdRxClass s_class(
        OdString("OdResBuf"), OdRxObject::desc(), &constructRx<OdResBuf>, OdString());
    return &s_class;
}

OdRxClass *OdResBuf::isA() const
{
    return desc();
}

OdResBufPtr OdResBuf::newRb(int type)
{
    OdResBufPtr buffer(desc()->create());
    buffer->setRestype(type);
    return buffer;
}

OdString OdResBuf::getString() const
{
    const auto *value = std::get_if<OdString>(&m_value);
    return value ? *value : OdString();
}

double OdResBuf::getDouble() const
{
    const auto *value = std::get_if<double>(&m_value);
    return value ? *value : 0.0;
}

OdCmColor OdResBuf::getColor() const
{
    const auto *value = std::get_if<OdCmColor>(&m_value);
    return value ? *value : OdCmColor();
}

OdDbHandle OdResBuf::getHandle() const
{
    const auto *value = std::get_if<OdDbHandle>(&m_value);
    return value ? *value : OdDbHandle();
}

std::int64_t OdResBuf::integer() const
{
    const auto *value = std::get_if<std::int64_t>(&m_value);
    return value ? *value : 0;
}

OdResBufPtr OdResBuf::last()
{
    OdResBuf *end = this;
    while (end->m_next) {
        end = end->m_next.get();
    }
    return OdResBufPtr(end);
}

void OdResBuf::insert(const OdResBufPtr &buffer)
{
    // A buffer behind itself would be a ring, which nobody could walk or release.
    if (!buffer || buffer.get() == this) {
        return;
    }
    buffer->last()->setNext(m_next);
    m_next = buffer;
}

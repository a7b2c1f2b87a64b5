// SPDX-License-Identifier: MIT
#pragma once

#include "OdCmColor.h"
#include "OdDbHandle.h"
#include "OdRxObject.h"
#include "OdString.h"
#include "hostApi.h"

#include <cstdint>
#include <variant>

class OdRxClass;
class OdResBuf;
using OdResBufPtr = OdSmartPtr<OdResBuf>;

/// One value with its type code, a link of a chain. A code below 1072 is a group code of the
/// drawing file; the codes from 5000 on exist in memory only. A getter of another type than the
/// value's gives 0, false, an empty text or by layer.
class KV_HOST_API OdResBuf : public OdRxObject
{
public:
    /// Type codes of values that no file holds.
    enum Type : int {
        kRtNoType = -1,
        kRtEnd = 5000,
        kRtDouble = 5001,
        kRtInt16 = 5003,
        kRtString = 5005,
        kRtInt32 = 5010,
        kRtColor = 5011,
        kDxfInt8 = 280,
        kDxfBool = 290,
    };

    ~OdResBuf() override;

    static OdRxClass *desc();
    OdRxClass *isA() const override;
    /// @throws OdError 255 when the class is not registered.
    static OdResBufPtr newRb(int type = kRtNoType);

    int restype() const { return m_type; }
    void setRestype(int type) { m_type = type; }

    OdString getString() const;
    void setString(const OdString &value) { m_value = value; }
    double getDouble() const;
    void setDouble(double value) { m_value = value; }
    std::int8_t getInt8() const { return std::int8_t(integer()); }
    void setInt8(std::int8_t value) { m_value = std::int64_t(value); }
    std::int16_t getInt16() const { return std::int16_t(integer()); }
    void setInt16(std::int16_t value) { m_value = std::int64_t(value); }
    std::int32_t getInt32() const { return std::int32_t(integer()); }
    void setInt32(std::int32_t value) { m_value = std::int64_t(value); }
    std::int64_t getInt64() const { return integer(); }
    void setInt64(std::int64_t value) { m_value = value; }
    bool getBool() const { return integer() != 0; }
    void setBool(bool value) { m_value = std::int64_t(value); }
    OdCmColor getColor() const;
    void setColor(const OdCmColor &value) { m_value = value; }
    OdDbHandle getHandle() const;
    void setHandle(OdDbHandle value) { m_value = value; }

    /// Null at the end of the chain.
    const OdResBufPtr &next() const { return m_next; }
    void setNext(OdResBufPtr next) { m_next = std::move(next); }
    /// The end of the chain that begins here; this buffer itself when nothing follows.
    OdResBufPtr last();
    /// Puts a buffer directly behind this one, before what followed so far.
    void insert(const OdResBufPtr &buffer);

private:
    std::int64_t integer() const;

    int m_type = kRtNoType;
    std::variant<std::monostate, OdString, double, std::int64_t, OdCmColor, OdDbHandle> m_value;
    OdResBufPtr m_next;
};

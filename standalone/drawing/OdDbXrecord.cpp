// SPDX-License-Identifier: MIT
#include "OdDbXrecord.h"

#include "CKvDrawingFormat.h"
#include "CKvObjectAccess.h"
#include "CKvTagReader.h"
#include "groupValueType.h"
#include "objectTags.h"
#include "rxConstruction.h"

namespace
{

/// Codes above exist in memory only.
constexpr int kLastGroupCode = 1071;

/// Offset of the data: behind 100 "AcDbXrecord" and the 280 that may follow it (R13 and R14 have
/// none).
/// @return the end of the bytes when the mark is missing.
std::size_t beginOfData(const CKvObjectSlot &slot)
{
    CKvTagReader reader(slot.bytes(), slot.form());
    while (reader.next()) {
        if (!reader.tag().isWord(100, "AcDbXrecord")) {
            continue;
        }
        const std::size_t begin = reader.position();
        const bool hasFlag =
            slot.format().version >= 1015 && reader.next() && reader.tag().code == 280;
        return hasFlag ? reader.position() : begin;
    }
    return slot.bytes().size();
}

OdResBufPtr bufferFromTag(const CKvObjectSlot &slot, const CKvTag &tag)
{
    OdResBufPtr buffer = OdResBuf::newRb(tag.code);
    switch (groupValueType(tag.code)) {
    case CKvGroupValueType::Real:
        buffer->setDouble(tag.real());
        break;
    case CKvGroupValueType::Bool:
    case CKvGroupValueType::Int16:
    case CKvGroupValueType::Int32:
    case CKvGroupValueType::Int64:
        buffer->setInt64(tag.integer());
        break;
    case CKvGroupValueType::Handle:
        buffer->setHandle(OdDbHandle(tag.handle()));
        break;
    case CKvGroupValueType::Text:
    case CKvGroupValueType::Bytes:
        buffer->setString(OdString(slot.format().codec.decode(tag.value)));
        break;
    }
    return buffer;
}

std::string valueFromBuffer(const CKvObjectSlot &slot, const OdResBuf &buffer)
{
    switch (groupValueType(buffer.restype())) {
    case CKvGroupValueType::Real:
        return spelledReal(buffer.getDouble());
    case CKvGroupValueType::Bool:
    case CKvGroupValueType::Int16:
    case CKvGroupValueType::Int32:
    case CKvGroupValueType::Int64:
        return std::to_string(buffer.getInt64());
    case CKvGroupValueType::Handle:
        return handleToText(buffer.getHandle().value());
    case CKvGroupValueType::Text:
    case CKvGroupValueType::Bytes:
        break;
    }
    return slot.format().codec.encode(buffer.getString().toQString());
}

} // namespace

OdRxClass *OdDbXrecord::desc()
{
    static OdRxClass s_class(OdString("OdDbXrecord"),
                             OdDbObject::desc(),
                             &constructRx<OdDbXrecord>,
                             OdString("XRECORD"));
    return &s_class;
}

OdDbXrecordPtr OdDbXrecord::cast(const OdRxObject *object)
{
    return castRx<OdDbXrecord>(object);
}

OdDbXrecordPtr OdDbXrecord::createObject()
{
    OdDbXrecordPtr xrecord(new OdDbXrecord, kOdRxObjAttach);
    CKvObjectAccess::makeDetached(*xrecord, "XRECORD");
    CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*xrecord);
    slot.rxClass = desc();
    appendTag(*slot.own, slot.format().style, 100, "AcDbXrecord");
    appendTag(*slot.own, slot.format().style, 280, "1");
    return xrecord;
}

OdResBufPtr OdDbXrecord::rbChain(OdDbDatabase *, int *) const
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    CKvTagReader reader(slot.bytes(), slot.form(), beginOfData(slot));
    OdResBufPtr first;
    OdResBufPtr last;
    while (reader.next()) {
        if (reader.tag().code == 999) {
            continue;
        }
        OdResBufPtr buffer = bufferFromTag(slot, reader.tag());
        if (last) {
            last->setNext(buffer);
        } else {
            first = buffer;
        }
        last = buffer;
    }
    return first;
}

void OdDbXrecord::setFromRbChain(const OdResBuf *chain, OdDbDatabase *)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    std::string &bytes = slot.ownBytes();
    bytes.erase(beginOfData(slot));
    for (const OdResBuf *buffer = chain; buffer; buffer = buffer->next().get()) {
        if (buffer->restype() > 0 && buffer->restype() <= kLastGroupCode) {
            appendTag(
                bytes, slot.format().style, buffer->restype(), valueFromBuffer(slot, *buffer));
        }
    }
}

// SPDX-License-Identifier: MIT
#include "violationStamp.h"

#include "CKvStdsError.h"
#include "CKvUtilsBase.h"
#include "OdDbDictionary.h"
#include "OdDbXrecord.h"

namespace
{

constexpr char kStampKey[] = "AcStStandard";
constexpr char kFlagsKey[] = "AcStFlags";
constexpr int kFlagCode = 90;
constexpr int kUserCode = 300;

/// What was read so far; values carry over from record to record.
struct StampValues {
    std::int32_t flag = -1;
    CKvString user;
};

void readRecord(const OdDbXrecord &record, StampValues &values)
{
    for (OdResBufPtr buffer = record.rbChain(); buffer; buffer = buffer->next()) {
        const bool isLast = buffer->next().isNull();
        if (buffer->restype() == kFlagCode) {
            values.flag = buffer->getInt32();
        } else if (buffer->restype() == kUserCode && !isLast) {
            // The last value is never read as text: the writer puts the name before the flag.
            values.user = CKvString(buffer->getString());
        }
    }
}

OdResBufPtr stampChain(bool isIgnored)
{
    OdResBufPtr head = OdResBuf::newRb();
    const OdResBufPtr flag = OdResBuf::newRb(kFlagCode);
    flag->setInt32(isIgnored ? 1 : 0);
    const OdResBufPtr user = OdResBuf::newRb(kUserCode);
    user->setString(isIgnored ? CKvUtilsBase::getUserName().toOdString() : OdString());
    // Each goes directly behind the head, so the name ends up before the flag.
    head->insert(flag);
    head->insert(user);
    return head;
}

} // namespace

void readViolationStamp(CKvStdsError &error)
{
    // Open for writing although nothing is written: an object that somebody else holds is refused.
    const OdDbObjectPtr object = error.objectId().openObject(OdDb::kForWrite);
    const OdDbObjectId extensionId = object ? object->extensionDictionary() : OdDbObjectId();
    if (extensionId.isNull()) {
        error.setIgnoreState(false, CKvString());
        return;
    }
    const OdDbDictionaryPtr extension(extensionId.safeOpenObject(OdDb::kForRead));
    const OdDbObjectId stampId = extension->getAt(OdString(kStampKey));
    const OdDbDictionaryPtr stamp(stampId.openObject(OdDb::kForRead));
    if (!stamp) {
        error.setIgnoreState(false, CKvString());
        return;
    }
    StampValues values;
    for (auto walk = stamp->newIterator(); !walk->done(); walk->next()) {
        const OdDbXrecordPtr record(walk->getObject());
        readRecord(*record, values);
        // Told once a record; the last one stands.
        error.setIgnoreState(values.flag != 0, values.user);
    }
}

void writeViolationStamp(OdDbObjectId objectId, bool isIgnored)
{
    const OdDbObjectPtr object = objectId.safeOpenObject(OdDb::kForWrite);
    object->createExtensionDictionary();
    const OdDbDictionaryPtr extension(
        object->extensionDictionary().safeOpenObject(OdDb::kForWrite));
    const OdDbDictionaryPtr stamp = OdDbDictionary::createObject();
    extension->setAt(OdString(kStampKey), stamp);
    const OdDbXrecordPtr record = OdDbXrecord::createObject();
    record->setFromRbChain(stampChain(isIgnored).get());
    stamp->setAt(OdString(kFlagsKey), record);
}

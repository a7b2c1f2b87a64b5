// SPDX-License-Identifier: MIT
#pragma once

#include "CKvObjectSlot.h"
#include "OdDbObject.h"

#include <string_view>

/// The library's own way into open objects: which slot they stand for, and the events of their
/// life.
class CKvObjectAccess
{
public:
    static OdDbObjectPtr open(CKvObjectSlot &slot, OdDb::OpenMode mode);
    /// Gives a fresh object a slot in no drawing, open for writing.
    /// @param type the word behind group 0.
    static void makeDetached(OdDbObject &object, std::string_view type);
    /// Null only before makeDetached.
    static CKvObjectSlot *slotOf(const OdDbObject &object) { return object.m_slot; }
    /// The slot of an object that is about to change. Tells the reactors at the first change.
    /// @throws OdError_NotOpenForWrite.
    static CKvObjectSlot &beginChange(OdDbObject &object);
    /// Lets the object stand for another slot, open for writing. A detached slot that it leaves is
    /// gone.
    static void moveTo(OdDbObject &object, CKvObjectSlot &slot);
    static void close(OdDbObject &object);
    /// Ends the object without telling anybody: it is being destroyed.
    static void abandon(OdDbObject &object);
    static void openForWrite(OdDbObject &object);

    static void tellAppended(const OdDbObject &object);
    static void tellErased(const OdDbObject &object);
};

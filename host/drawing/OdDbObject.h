// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbObjectId.h"
#include "OdRxClass.h"
#include "OdRxObject.h"
#include "OdString.h"
#include "hostApi.h"

/// An object of a drawing, open. Made by createObject of its class (then new and in no drawing
/// until it is added), or by opening an id. An id can be open several times; all see the same
/// values. When the last one that was opened for writing goes, the object closes, and reactors
/// learn of it if it was changed. A setter on an object that is open for reading throws
/// OdError_NotOpenForWrite.
class KV_HOST_API OdDbObject : public OdRxObject
{
public:
    OdDbObject();
    ~OdDbObject() override;

    static OdRxClass *desc();
    static OdDbObjectPtr cast(const OdRxObject *object);
    OdRxClass *isA() const override;
    void release() override;

    /// Null while the object is in no drawing.
    OdDbObjectId objectId() const;
    OdDbDatabase *database() const;
    /// Null when the file names no owner.
    OdDbObjectId ownerId() const;
    OdDbHandle getDbHandle() const { return objectId().handle(); }

    bool isWriteEnabled() const;
    bool isErased() const;
    /// True until the object first closes after it came into the drawing.
    bool isNewObject() const;
    /// True when it was changed since it was opened.
    bool isModified() const;

    void upgradeOpen();
    void downgradeOpen();
    /// Erases the object, or brings it back. What hangs on it (its extension dictionary and what
    /// that holds) goes and comes with it; what refers to it stays as it is.
    void erase(bool isErasing = true);

    /// Null when there is none.
    OdDbObjectId extensionDictionary() const;
    /// Does nothing when one exists.
    /// @throws OdError kUnsupportedByVersion in a drawing of R12 or older.
    void createExtensionDictionary();

    /// The other object takes this one's place, id, handle and owner. This object, which must be
    /// open for writing, becomes one of no drawing.
    void
    handOverTo(const OdDbObjectPtr &other, bool keepExtendedData, bool keepExtensionDictionary);

    OdRxObjectPtr clone() const override;

private:
    friend class CKvObjectAccess;

    CKvObjectSlot *m_slot;
    bool m_isOpenForWrite;
};

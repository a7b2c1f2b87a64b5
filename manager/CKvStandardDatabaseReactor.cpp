// SPDX-License-Identifier: MIT
#include "CKvStandardDatabaseReactor.h"

#include "CKvStdsManagerImpl.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdDbViewportTableRecord.h"

void CKvStandardDatabaseReactor::objectAppended(const OdDbDatabase * /*database*/,
                                                const OdDbObject *object)
{
    if (CKvStdsManagerImpl *manager = CKvStdsManagerImpl::current()) {
        manager->noteChangedObject(object);
    }
}

void CKvStandardDatabaseReactor::objectOpenedForModify(const OdDbDatabase * /*database*/,
                                                       const OdDbObject *object)
{
    if (object->isNewObject() || !object->isKindOf(OdDbDimStyleTableRecord::desc())) {
        return;
    }
    const OdDbDimStyleTableRecordPtr record(object->objectId().openObject(OdDb::kForRead));
    CKvStdsManagerImpl *manager = CKvStdsManagerImpl::current();
    if (manager && record) {
        manager->setDimStyleSnapshot(OdDbDimStyleTableRecordPtr(record->clone()));
    }
}

void CKvStandardDatabaseReactor::objectModified(const OdDbDatabase * /*database*/,
                                                const OdDbObject *object)
{
    if (object->isErased() || object->isNewObject()) {
        return;
    }
    // Zooming and panning change it all the time.
    if (object->isKindOf(OdDbViewportTableRecord::desc())) {
        return;
    }
    if (CKvStdsManagerImpl *manager = CKvStdsManagerImpl::current()) {
        manager->noteChangedObject(object);
        manager->restartTimer();
    }
}

// SPDX-License-Identifier: MIT
#include "CKvCommandInterStateVerify.h"

#include "CKvStdsManagerImpl.h"

CKvCommandInterStateVerify::CKvCommandInterStateVerify()
{
    AddFlags(0x35841002);
}

OdString CKvCommandInterStateVerify::globalName() const
{
    return OdString("_INTERSTATEVERIFY");
}

OdString CKvCommandInterStateVerify::localName() const
{
    return OdString("INTERSTATEVERIFY");
}

int CKvCommandInterStateVerify::executeCommand(CKvCommandContext * /*context*/)
{
    CKvStdsManagerImpl *manager = CKvStdsManagerImpl::current();
    if (!manager) {
        return kNormal;
    }
    OdDbObjectIdArray ids;
    for (const OdDbObjectId &id : manager->changedObjects()) {
        ids.append(id);
    }
    // No test for an empty list, and that is meant: it checks the whole drawing.
    manager->verifyChangedObjects(std::move(ids));
    manager->clearChangedObjects();
    return kNormal;
}

int CKvCommandInterStateVerify::helpContextId() const
{
    return 0;
}

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDatabaseReactor.h"

/// Notes the changed objects of the drawings it is attached to in the manager's queue. Objects that
/// are erased and variables of the header are not noted.
class CKvStandardDatabaseReactor : public CKvDatabaseReactor
{
public:
    void objectAppended(const OdDbDatabase *database, const OdDbObject *object) override;
    void objectOpenedForModify(const OdDbDatabase *database, const OdDbObject *object) override;
    void objectModified(const OdDbDatabase *database, const OdDbObject *object) override;
};

// SPDX-License-Identifier: MIT
#include "OdDbDatabaseReactor.h"

#include "OdDbDatabase.h"
#include "OdRxClass.h"

OdDbDatabaseReactor::OdDbDatabaseReactor() = default;

OdDbDatabaseReactor::~OdDbDatabaseReactor()
{
    while (!m_databases.empty()) {
        m_databases.back()->removeReactor(this);
    }
}

OdRxClass *OdDbDatabaseReactor::desc()
{
    static OdRxClass s_class(
        OdString("OdDbDatabaseReactor"), OdRxObject::desc(), nullptr, OdString());
    return &s_class;
}

OdRxClass *OdDbDatabaseReactor::isA() const
{
    return desc();
}

void OdDbDatabaseReactor::objectAppended(const OdDbDatabase *, const OdDbObject *) { }

void OdDbDatabaseReactor::objectUnAppended(const OdDbDatabase *, const OdDbObject *) { }

void OdDbDatabaseReactor::objectReAppended(const OdDbDatabase *, const OdDbObject *) { }

void OdDbDatabaseReactor::objectOpenedForModify(const OdDbDatabase *, const OdDbObject *) { }

void OdDbDatabaseReactor::objectModified(const OdDbDatabase *, const OdDbObject *) { }

void OdDbDatabaseReactor::objectErased(const OdDbDatabase *, const OdDbObject *, bool) { }

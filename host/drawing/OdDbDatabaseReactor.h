// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxObject.h"

#include <vector>

class OdDbDatabase;
class OdDbObject;

/// Learns what happens to the objects of the databases it is attached to. The bodies here do
/// nothing.
class KV_HOST_API OdDbDatabaseReactor : public OdRxObject
{
public:
    OdDbDatabaseReactor();
    /// Takes the reactor off the databases that still have it, so that a module can go before them.
    ~OdDbDatabaseReactor() override;

    static OdRxClass *desc();
    OdRxClass *isA() const override;

    virtual void objectAppended(const OdDbDatabase *database, const OdDbObject *object);
    virtual void objectUnAppended(const OdDbDatabase *database, const OdDbObject *object);
    virtual void objectReAppended(const OdDbDatabase *database, const OdDbObject *object);
    /// Before the first change after an opening; the object is still as it was.
    virtual void objectOpenedForModify(const OdDbDatabase *database, const OdDbObject *object);
    /// When a changed object closes.
    virtual void objectModified(const OdDbDatabase *database, const OdDbObject *object);
    /// @param isErased false when the object is brought back.
    virtual void
    objectErased(const OdDbDatabase *database, const OdDbObject *object, bool isErased);

private:
    friend class OdDbDatabase;

    std::vector<OdDbDatabase *> m_databases;
};

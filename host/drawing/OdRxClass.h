// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxObject.h"
#include "OdString.h"
#include "hostApi.h"

#include <string>

class OdRxModule;

/// Makes a new object with one reference.
using OdPseudoConstructor = OdRxObjectPtr (*)();

/// A run-time class: name, parent, how to make an object, and for drawing objects the name that
/// stands behind group 0.
class KV_HOST_API OdRxClass : public OdRxObject
{
public:
    OdRxClass(OdString name, OdRxClass *parent, OdPseudoConstructor constructor, OdString dxfName);
    ~OdRxClass() override;

    static OdRxClass *desc();
    OdRxClass *isA() const override { return desc(); }

    const OdString &name() const { return m_name; }
    std::string nameUtf8() const { return m_name.toQString().toStdString(); }
    /// "LAYER" for instance; empty for a class that no file holds.
    const OdString &dxfName() const { return m_dxfName; }
    /// Null for the root.
    OdRxClass *myParent() const { return m_parent; }
    bool isDerivedFrom(const OdRxClass *ancestor) const;
    /// A new object, or null for an abstract class.
    OdRxObjectPtr create() const { return m_constructor ? m_constructor() : OdRxObjectPtr(); }

private:
    OdString m_name;
    OdString m_dxfName;
    OdRxClass *m_parent;
    OdPseudoConstructor m_constructor;
};

/// Registers a class with the host. The three numbers, the application's name, the module and the
/// flags are for hosts that save objects of foreign classes; this one stores none of them.
/// @return the class, owned by the registry until deleteOdRxClass.
/// @throws OdError 313 when a class of that name is registered.
KV_HOST_API OdRxClass *newOdRxClass(const OdString &name,
                                    OdRxClass *parent,
                                    OdPseudoConstructor constructor,
                                    int formatVersion,
                                    int maintenanceVersion,
                                    int proxyFlags,
                                    const OdString &dxfName,
                                    const OdString &applicationName,
                                    OdRxModule *module,
                                    int customFlags);
/// @throws OdError 255 when the class is null or not registered.
KV_HOST_API void deleteOdRxClass(OdRxClass *rxClass);

// SPDX-License-Identifier: MIT
#include "OdRxClass.h"

#include <map>
#include <utility>

namespace
{

using ClassRegistry = std::map<OdString, OdSmartPtr<OdRxClass>>;

// The classes that modules brought along. Those of the library are not in it: they are there as
// long as the process, and nobody takes them away.
ClassRegistry &registry()
{
    static ClassRegistry s_registry;
    return s_registry;
}

} // namespace

OdRxClass::OdRxClass(OdString name,
                     OdRxClass *parent,
                     OdPseudoConstructor constructor,
                     OdString dxfName)
    : m_name(std::move(name))
    , m_dxfName(std::move(dxfName))
    , m_parent(parent)
    , m_constructor(constructor)
{
}

OdRxClass::~OdRxClass() = default;

OdRxClass *OdRxClass::desc()
{
    static OdRxClass s_class(OdString("OdRxClass"), OdRxObject::desc(), nullptr, OdString());
    return &s_class;
}

bool OdRxClass::isDerivedFrom(const OdRxClass *ancestor) const
{
    for (const OdRxClass *rxClass = this; rxClass; rxClass = rxClass->m_parent) {
        if (rxClass == ancestor) {
            return true;
        }
    }
    return false;
}

OdRxClass *newOdRxClass(const OdString &name,
                        OdRxClass *parent,
                        OdPseudoConstructor constructor,
                        int /*formatVersion*/,
                        int /*maintenanceVersion*/,
                        int /*proxyFlags*/,
                        const OdString &dxfName,
                        const OdString & /*applicationName*/,
                        OdRxModule * /*module*/,
                        int /*customFlags*/)
{
    if (registry().count(name) > 0) {
        throw OdError(OdResult::kClassAlreadyRegistered,
                      "The class " + name.toQString().toStdString() + " is registered already.");
    }
    // Whatever a module makes is an OdRxObject, also when it names no parent.
    OdRxClass *known = parent ? parent : OdRxObject::desc();
    OdSmartPtr<OdRxClass> made(new OdRxClass(name, known, constructor, dxfName), kOdRxObjAttach);
    return registry().emplace(name, std::move(made)).first->second.get();
}

void deleteOdRxClass(OdRxClass *rxClass)
{
    if (!rxClass) {
        throw OdError(OdResult::kClassNotRegistered, "There is no class to take away.");
    }
    // By address, since the class may be gone already and must not be asked for its name.
    ClassRegistry &classes = registry();
    for (auto entry = classes.begin(); entry != classes.end(); ++entry) {
        if (entry->second.get() == rxClass) {
            classes.erase(entry);
            return;
        }
    }
    throw OdError(OdResult::kClassNotRegistered, "The class to take away is not registered.");
}

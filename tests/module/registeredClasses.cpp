// SPDX-License-Identifier: MIT
#include "registeredClasses.h"

#include "OdError.h"

std::vector<std::string> moduleClasses()
{
    return { "CKvStdsFix",
             "CKvStdsError",
             "CKvStdsPlugins",
             "CKvDimStylePluginImpl",
             "CKvLayerPluginImpl",
             "CKvLineStylePluginImpl",
             "CKvTextStylePluginImpl" };
}

std::vector<std::string> registeredClasses()
{
    std::vector<std::string> names;
    for (const std::string &name : moduleClasses()) {
        if (OdRxClass *made = registerForeignClass(name.c_str())) {
            deleteOdRxClass(made);
        } else {
            names.push_back(name);
        }
    }
    return names;
}

OdRxClass *registerForeignClass(const char *name)
{
    try {
        return newOdRxClass(OdString(name),
                            OdRxObject::desc(),
                            nullptr,
                            0,
                            0,
                            0,
                            OdString::kEmpty,
                            OdString::kEmpty,
                            nullptr,
                            0);
    } catch (const OdError &) {
        return nullptr;
    }
}

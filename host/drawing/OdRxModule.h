// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxObject.h"
#include "OdString.h"
#include "hostApi.h"

#include <cstdint>

/// What the operating system calls a loaded module by; what dlopen gives.
using OdRxModuleHandle = void *;

/// A module of the host: a file that is loaded, started, stopped and unloaded again.
class KV_HOST_API OdRxModule : public OdRxObject
{
public:
    static OdRxClass *desc();
    OdRxClass *isA() const override;

    virtual OdRxModuleHandle sysModuleHandle() = 0;
    /// Destroys the module object. The host unloads the file afterwards.
    virtual void deleteModule() = 0;
    /// Called once after loading.
    virtual void initApp() = 0;
    /// Called once before deleteModule.
    virtual void uninitApp() = 0;
    /// Full path of the module's file.
    virtual OdString moduleName() const = 0;
};

/// What a module's file exports as "odrxCreateModuleObject".
/// @param handle of the loaded file; set to null when the module object takes it over.
/// @return the module object, the same at each call.
using OdRxCreateModuleObject = OdRxModule *(*)(OdRxModuleHandle &handle);
/// What a module's file exports as "odrxGetAPIVersion": the version of the drawing library that it
/// was made for.
using OdRxGetApiVersion = void (*)(std::uint32_t &major,
                                   std::uint32_t &minor,
                                   std::uint32_t &majorBuild,
                                   std::uint32_t &minorBuild);

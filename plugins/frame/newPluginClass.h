// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsPlugins.h"

/// Registers the class of a plug-in, so that it can be made by its class.
/// @throws OdError 313 when a class of that name is registered.
template <class Plugin> OdRxClass *newPluginClass(const char *name)
{
    return newOdRxClass(
        OdString(name),
        CKvStdsPlugins::desc(),
        [] { return OdRxObjectPtr(new Plugin, kOdRxObjAttach); },
        0,
        0,
        0,
        OdString::kEmpty,
        OdString::kEmpty,
        nullptr,
        0);
}

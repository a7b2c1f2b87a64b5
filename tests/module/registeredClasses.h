// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxClass.h"

#include <string>
#include <vector>

/// The classes that the module registers, in its order, the manager's first.
std::vector<std::string> moduleClasses();
/// Which of them are there.
std::vector<std::string> registeredClasses();
/// Registers a class that is none of the module's.
/// @return null when a class of that name is there.
OdRxClass *registerForeignClass(const char *name);

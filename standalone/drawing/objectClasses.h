// SPDX-License-Identifier: MIT
#pragma once

#include "CKvObjectSlot.h"
#include "CKvTableKind.h"

#include <string_view>

class OdRxClass;

/// The run-time class of an object of a file: the library's own where it has one, otherwise one
/// that knows the name behind group 0 and, for an entity, what all entities have.
/// @return never null; the classes live as long as the process.
OdRxClass *objectClass(std::string_view type, CKvObjectSlot::Role role);
OdRxClass *tableClass(CKvTableKind kind);

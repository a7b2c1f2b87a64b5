// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTableKind.h"

#include <string_view>

class CKvDrawingStore;
class CKvObjectSlot;
class QString;

/// True for a record that is meant by what names none: the text style and the dimension style
/// Standard.
bool isMeantByNone(CKvTableKind kind, const QString &name);
/// Lets an entity that names no record of the table name this one. Does nothing for an entity that
/// names one, or that needs none.
void writeImpliedName(CKvObjectSlot &entity, CKvTableKind kind, std::string_view encodedName);
/// The same for the header and what is current.
void writeImpliedCurrent(CKvDrawingStore &store, CKvTableKind kind, std::string_view encodedName);

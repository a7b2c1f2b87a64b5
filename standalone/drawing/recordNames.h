// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

class CKvObjectSlot;

/// Name of a table record, group 2, decoded; blanks at its ends belong to it. Empty when there is
/// none.
QString recordName(const CKvObjectSlot &record);
/// The same as the file spells it.
std::string_view encodedRecordName(const CKvObjectSlot &record);
/// True for model space, paper space and the layouts, as blocks are named from R13 on.
bool isSpaceName(const QString &name);
/// @throws OdError (kInvalidInput) when no object may bear the name: an empty one, or one with a
/// character that names can't have.
void requireValidName(const QString &name);

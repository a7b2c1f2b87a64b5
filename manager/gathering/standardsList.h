// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"

#include <vector>

class OdDbDatabase;

/// What a reader of the list does with an entry that is no xrecord.
enum class ForeignListEntry { PassOver, Throw };

/// The standards files that the drawing names, in the order in which they count, as they are
/// stored. Empty when the drawing has no list.
/// @throws OdError_NotThatKindOfClass when the list is no dictionary, and for a foreign entry if so
/// asked.
std::vector<CKvString> readStandardsList(const OdDbDatabase &database,
                                         ForeignListEntry foreignEntry);

/// Puts a file behind all others of the list; the list is made when there is none.
/// @param path stored as it is.
/// @throws OdError kUnsupportedByVersion when the drawing has no place for a list (R12 and older).
void appendToStandardsList(OdDbDatabase &database, const CKvString &path);

/// Takes out every entry with this very text.
/// @return how many there were.
int removeFromStandardsList(OdDbDatabase &database, const CKvString &path);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvLines.h"

/// Lines [oldBegin, oldEnd) that became [newBegin, newEnd); one of the two may be empty.
struct CKvLineEdit {
    std::size_t oldBegin;
    std::size_t oldEnd;
    std::size_t newBegin;
    std::size_t newEnd;
};

/// What turns one text into the other, in ascending order, with an equal line between two edits.
/// The time grows with the length of the texts: it is the shortest difference where changes stand
/// apart, and may be a longer one where very much changed at one place.
std::vector<CKvLineEdit> lineDifference(const CKvLines &before, const CKvLines &after);

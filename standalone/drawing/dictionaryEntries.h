// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTag.h"

#include <QString>

#include <vector>

class CKvObjectSlot;

/// A pair of a dictionary: group 3 with the key, 350 or 360 with the handle.
struct CKvDictionaryEntry {
    QString key;
    std::uint64_t handle = 0;
    CKvTag keyTag;
    CKvTag handleTag;
};

/// In stored order; a key without handle is left out.
std::vector<CKvDictionaryEntry> dictionaryEntries(const CKvObjectSlot &dictionary);

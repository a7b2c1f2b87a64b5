// SPDX-License-Identifier: MIT
#pragma once

#include "recordTables.h"

#include <QString>

#include <cstdint>

/// One thing about a record that the panel changes by a command.
struct CKvRecordChange {
    enum class Asks : std::uint8_t {
        Nothing,
        /// On or off; the entry of the menu has a tick.
        Flag,
        Text,
        Color,
        LineStyle,
        LineWeight,
        /// A setting of a dimension style, then its value.
        Setting,
    };

    CKvRecordKind kind;
    Asks asks;
    /// The entry of the menu, in the language of the sources.
    const char *label;
    /// The option of the command of that kind; of a flag, the one that switches it on.
    const char *option;
    /// The option that switches a flag off. Null when the command asks for ON or OFF.
    const char *offOption = nullptr;
    /// What it is now: a text, or "true" or "false" for a flag. Null when nothing is proposed.
    QString (*present)(const OdDbSymbolTableRecord &record) = nullptr;
};

/// To walk over all changes, those of a kind in the order of its menu.
struct CKvRecordChanges {
};
const CKvRecordChange *begin(CKvRecordChanges);
const CKvRecordChange *end(CKvRecordChanges);

/// Whether a flag is on.
bool isSet(const CKvRecordChange &flag, const OdDbSymbolTableRecord &record);

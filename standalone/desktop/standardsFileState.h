// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class OdDbDatabase;
class CKvSystemServices;

/// Whether a listed standards file can be used, and why not.
struct CKvStandardsFileState {
    enum class Kind { AtItsPath, FoundElsewhere, Missing, Unreadable };
    Kind kind = Kind::Missing;
    /// Empty when it is missing.
    QString foundPath;
    /// A word or two for the user.
    QString text;
    /// Of an unreadable file; empty otherwise.
    QString reason;

    bool isUsable() const { return kind == Kind::AtItsPath || kind == Kind::FoundElsewhere; }
};

/// Looks for the file as a check does, and reads it.
/// @param listed as the drawing stores it.
CKvStandardsFileState
standardsFileState(const QString &listed, OdDbDatabase &database, CKvSystemServices &services);

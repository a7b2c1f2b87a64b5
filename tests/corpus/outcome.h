// SPDX-License-Identifier: MIT
#pragma once

#include "walkDrawing.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What became of a file that was loaded, walked over and saved.
struct CKvOutcome {
    /// Why the file was refused; empty when it was not.
    QString error;
    /// Line of the refusal.
    qint64 line = 0;
    /// It was refused by the walk, not while it was loaded.
    bool isRefusedLate = false;
    QStringList warnings;
    CKvWalkResult walk;
    /// What may never happen: a foreign exception, a saved drawing of other bytes. Empty when all
    /// is well.
    QString fault;

    bool isRefused() const { return !error.isEmpty(); }
    /// "error: line 3: ...", or the warnings one a line, or "loads".
    QString text() const;
};

/// Loads a drawing, saves it unread, walks over all of it and saves it again.
CKvOutcome outcomeOf(const QByteArray &bytes);

/// Loads a drawing, changes it in many places and saves it.
/// @return the outcome of the saved bytes; of the drawing itself when it is refused.
CKvOutcome outcomeAfterEditing(const QByteArray &bytes);

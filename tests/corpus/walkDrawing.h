// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDatabase.h"

#include <QStringList>

/// What a walk over everything in a drawing met.
struct CKvWalkResult {
    int records = 0;
    int dictionaries = 0;
    int xrecords = 0;
    int entities = 0;
    /// What must hold in every drawing, damaged or not, and does not, each with the place.
    QStringList faults;
    /// What holds in every sound drawing and does not: values that no file should have.
    QStringList oddities;
};

/// Opens every table, record, dictionary, xrecord, block and entity of a drawing, reads all that
/// can be read of it, and looks whether the answers agree with each other.
CKvWalkResult walkDrawing(OdDbDatabase &drawing);

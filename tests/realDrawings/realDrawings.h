// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Full paths of the drawings that the tests find: those of samples/, and those that other people
/// made where the folder is there (KV_REAL_DRAWINGS names another place than the one of configure
/// time). Sorted; every ending that a drawing can have.
QStringList realDrawings();
/// True when the folder with other people's drawings is there.
bool hasOtherPeoplesDrawings();

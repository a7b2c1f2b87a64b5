// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a file dialog lists when a drawing is to be read, as a drawing or as its standards.
QString filterOfDrawings();

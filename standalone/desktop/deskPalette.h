// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

/// The colours of the desktop on a light ground.
QPalette lightPalette();
/// The colours of the desktop on a dark ground.
QPalette darkPalette();

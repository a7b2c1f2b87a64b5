// SPDX-License-Identifier: MIT
#pragma once

#include "OdCmColor.h"

#include <QString>

/// A colour as users write it: 1 to 255, red to white, or R,G,B.
/// @throws OdError for anything else.
OdCmColor colorFromText(const QString &text);
/// As colorFromText, or ByLayer or ByBlock, which a layer can't have.
OdCmColor entityColorFromText(const QString &text);

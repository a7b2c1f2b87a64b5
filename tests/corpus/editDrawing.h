// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDatabase.h"

/// Changes a drawing as repairs do: every layer another colour and lineweight, one layer renamed,
/// entities on another layer, an extension dictionary with an xrecord, unused styles purged, one of
/// the others erased. What the drawing refuses with OdError is left out.
void editDrawing(OdDbDatabase &drawing);

// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchOptions.h"
#include "CKvExitStatus.h"

/// Takes standards files out of a drawing's list, adds others, and lists what it then holds.
/// @return Incomplete when the drawing can't be read or written, when a file to add does not exist
/// or one to remove is not in the list; the drawing is then as it was. Otherwise Clean.
CKvExitStatus commandFiles(const CKvDrawingOptions &options);

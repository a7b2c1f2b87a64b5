// SPDX-License-Identifier: MIT
#pragma once

class CKvDesktop;

/// Shows the standards settings of the active drawing and returns when the user has finished. Does
/// nothing when no drawing is open.
/// @param page 1 files, 2 categories, 3 settings.
void showStandardsSettings(CKvDesktop &desktop, int page);

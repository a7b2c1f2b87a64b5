// SPDX-License-Identifier: MIT
#pragma once

class OdDbObject;

// Whether a style keeps its size on paper whatever the scale, and whether its texts turn with the
// sheet: extended data of AcadAnnotative and AcadAnnoPO.

/// True for a text style and a dimension style of a drawing.
bool canBeAnnotative(const OdDbObject &style);

/// False for a style that does not tell.
bool isAnnotative(const OdDbObject &style);
/// Does nothing when it is so already.
/// @throws OdError_NotOpenForWrite.
void setAnnotative(OdDbObject &style, bool isAnnotative);

/// Text styles alone tell it; false for any other.
bool matchesOrientation(const OdDbObject &style);
/// Does nothing when it is so already, and for what is no text style.
/// @throws OdError_NotOpenForWrite.
void setMatchesOrientation(OdDbObject &style, bool matchesOrientation);

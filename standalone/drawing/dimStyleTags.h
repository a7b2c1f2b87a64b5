// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTag.h"
#include "OdCmColor.h"
#include "dimensionVariables.h"

#include <optional>
#include <string>

class CKvObjectSlot;

/// Where a dimension style keeps a setting.
struct CKvDimStyleTag {
    CKvTag tag;
    /// In extended data, as older drawings keep what is newer than they are.
    bool isExtended = false;
};

/// A value in the two spellings of an ASCII file; one of them is written.
struct CKvDimStyleValue {
    std::string plain;
    std::string extended;
};

/// The group of a setting, or else the value in extended data where the drawing's version has no
/// group for it. None when the style leaves the setting out.
std::optional<CKvDimStyleTag> findDimStyleTag(const CKvObjectSlot &slot,
                                              const CKvDimensionVariable &variable);

/// Writes a setting where it stands, or where the drawing's version has its place; leaves it when
/// there is none.
void writeDimStyleTag(CKvObjectSlot &slot,
                      const CKvDimensionVariable &variable,
                      const CKvDimStyleValue &value);

/// True for a drawing of R14 or older, whose styles name the arrow blocks (groups 5, 6, 7) in place
/// of their handles.
bool namesArrowBlocks(const CKvObjectSlot &slot);

/// Group 1004 of the background colour: 24 bytes, of which 8 to 11 are the colour.
OdCmColor colorFromBytes(const CKvTag &tag);
std::string bytesOfColor(const OdCmColor &color);

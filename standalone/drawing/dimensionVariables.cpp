// SPDX-License-Identifier: MIT
#include "dimensionVariables.h"

#include <cstddef>
#include <iterator>
#include <limits>

namespace
{

using Kind = CKvDimensionVariable::Kind;
using Range = CKvDimensionVariable::Range;

// Versions by the number in $ACADVER.
constexpr int kAlways = 0;
constexpr int kR13 = 1012;
constexpr int kR2000 = 1015;
constexpr int kR2007 = 1021;
constexpr int kR2010 = 1024;
constexpr int kNever = std::numeric_limits<int>::max();

constexpr double kLargest = std::numeric_limits<double>::max();
constexpr Range kAny { -kLargest, kLargest };
constexpr Range kNotNegative { 0, kLargest };
constexpr Range kPositive { std::numeric_limits<double>::min(), kLargest };
/// 5 to 90 degrees in radians, a little wider for what was rounded.
constexpr Range kJogAngle { 0.0872, 1.5708 };

/// In the order of OdDbDimVariable. Groups and defaults are those of the file format; DIMMZF and
/// the three like it have no group, so this host keeps them under a name of its own.
constexpr CKvDimensionVariable kVariables[] = {
    { OdDbDimVariable::kDimadec, "DIMADEC", Kind::Integer, 179, kR2000, 0, { -1, 8 } },
    { OdDbDimVariable::kDimalt, "DIMALT", Kind::Flag, 170, kAlways, 0, kAny },
    { OdDbDimVariable::kDimaltd, "DIMALTD", Kind::Integer, 171, kAlways, 2, { 0, 8 } },
    { OdDbDimVariable::kDimaltf, "DIMALTF", Kind::Real, 143, kAlways, 25.4, kPositive },
    { OdDbDimVariable::kDimaltrnd, "DIMALTRND", Kind::Real, 148, kR2000, 0, kNotNegative },
    { OdDbDimVariable::kDimalttd, "DIMALTTD", Kind::Integer, 274, kR13, 2, { 0, 8 } },
    { OdDbDimVariable::kDimalttz, "DIMALTTZ", Kind::Integer, 286, kR13, 0, { 0, 15 } },
    { OdDbDimVariable::kDimaltu, "DIMALTU", Kind::Integer, 273, kR13, 2, { 1, 8 } },
    { OdDbDimVariable::kDimaltz, "DIMALTZ", Kind::Integer, 285, kR13, 0, { 0, 15 } },
    { OdDbDimVariable::kDimapost, "DIMAPOST", Kind::Text, 4, kAlways, 0, kAny },
    { OdDbDimVariable::kDimasz, "DIMASZ", Kind::Real, 41, kAlways, 0.18, kNotNegative },
    { OdDbDimVariable::kDimatfit, "DIMATFIT", Kind::Integer, 289, kR2000, 3, { 0, 3 } },
    { OdDbDimVariable::kDimaunit, "DIMAUNIT", Kind::Integer, 275, kR13, 0, { 0, 4 } },
    { OdDbDimVariable::kDimazin, "DIMAZIN", Kind::Integer, 79, kR2000, 0, { 0, 3 } },
    { OdDbDimVariable::kDimblk, "DIMBLK", Kind::Block, 342, kAlways, 0, kAny },
    { OdDbDimVariable::kDimblk1, "DIMBLK1", Kind::Block, 343, kAlways, 0, kAny },
    { OdDbDimVariable::kDimblk2, "DIMBLK2", Kind::Block, 344, kAlways, 0, kAny },
    { OdDbDimVariable::kDimcen, "DIMCEN", Kind::Real, 141, kAlways, 0.09, kAny },
    { OdDbDimVariable::kDimclrd, "DIMCLRD", Kind::Color, 176, kAlways, 0, { 0, 256 } },
    { OdDbDimVariable::kDimclre, "DIMCLRE", Kind::Color, 177, kAlways, 0, { 0, 256 } },
    { OdDbDimVariable::kDimclrt, "DIMCLRT", Kind::Color, 178, kAlways, 0, { 0, 256 } },
    { OdDbDimVariable::kDimdec, "DIMDEC", Kind::Integer, 271, kR13, 4, { 0, 8 } },
    { OdDbDimVariable::kDimdle, "DIMDLE", Kind::Real, 46, kAlways, 0, kNotNegative },
    { OdDbDimVariable::kDimdli, "DIMDLI", Kind::Real, 43, kAlways, 0.38, kNotNegative },
    { OdDbDimVariable::kDimdsep, "DIMDSEP", Kind::Integer, 278, kR2000, 46, { 0, 32767 } },
    { OdDbDimVariable::kDimexe, "DIMEXE", Kind::Real, 44, kAlways, 0.18, kNotNegative },
    { OdDbDimVariable::kDimexo, "DIMEXO", Kind::Real, 42, kAlways, 0.0625, kNotNegative },
    { OdDbDimVariable::kDimfrac, "DIMFRAC", Kind::Integer, 276, kR2000, 0, { 0, 2 } },
    { OdDbDimVariable::kDimgap, "DIMGAP", Kind::Real, 147, kAlways, 0.09, kAny },
    { OdDbDimVariable::kDimjust, "DIMJUST", Kind::Integer, 280, kR13, 0, { 0, 4 } },
    { OdDbDimVariable::kDimldrblk, "DIMLDRBLK", Kind::Block, 341, kR2000, 0, kAny },
    { OdDbDimVariable::kDimlfac, "DIMLFAC", Kind::Real, 144, kAlways, 1.0, kAny },
    { OdDbDimVariable::kDimlim, "DIMLIM", Kind::Flag, 72, kAlways, 0, kAny },
    { OdDbDimVariable::kDimlunit, "DIMLUNIT", Kind::Integer, 277, kR2000, 2, { 1, 6 } },
    { OdDbDimVariable::kDimlwd, "DIMLWD", Kind::LineWeight, 371, kR2000, -2, { -3, 211 } },
    { OdDbDimVariable::kDimlwe, "DIMLWE", Kind::LineWeight, 372, kR2000, -2, { -3, 211 } },
    { OdDbDimVariable::kDimpost, "DIMPOST", Kind::Text, 3, kAlways, 0, kAny },
    { OdDbDimVariable::kDimrnd, "DIMRND", Kind::Real, 45, kAlways, 0, kNotNegative },
    { OdDbDimVariable::kDimsah, "DIMSAH", Kind::Flag, 173, kAlways, 0, kAny },
    { OdDbDimVariable::kDimscale, "DIMSCALE", Kind::Real, 40, kAlways, 1.0, kNotNegative },
    { OdDbDimVariable::kDimsd1, "DIMSD1", Kind::Flag, 281, kR13, 0, kAny },
    { OdDbDimVariable::kDimsd2, "DIMSD2", Kind::Flag, 282, kR13, 0, kAny },
    { OdDbDimVariable::kDimse1, "DIMSE1", Kind::Flag, 75, kAlways, 0, kAny },
    { OdDbDimVariable::kDimse2, "DIMSE2", Kind::Flag, 76, kAlways, 0, kAny },
    { OdDbDimVariable::kDimsoxd, "DIMSOXD", Kind::Flag, 175, kAlways, 0, kAny },
    { OdDbDimVariable::kDimtad, "DIMTAD", Kind::Integer, 77, kAlways, 0, { 0, 4 } },
    { OdDbDimVariable::kDimtdec, "DIMTDEC", Kind::Integer, 272, kR13, 4, { 0, 8 } },
    { OdDbDimVariable::kDimtfac, "DIMTFAC", Kind::Real, 146, kAlways, 1.0, kPositive },
    { OdDbDimVariable::kDimtih, "DIMTIH", Kind::Flag, 73, kAlways, 1, kAny },
    { OdDbDimVariable::kDimtix, "DIMTIX", Kind::Flag, 174, kAlways, 0, kAny },
    { OdDbDimVariable::kDimtm, "DIMTM", Kind::Real, 48, kAlways, 0, kAny },
    { OdDbDimVariable::kDimtmove, "DIMTMOVE", Kind::Integer, 279, kR2000, 0, { 0, 2 } },
    { OdDbDimVariable::kDimtofl, "DIMTOFL", Kind::Flag, 172, kAlways, 0, kAny },
    { OdDbDimVariable::kDimtoh, "DIMTOH", Kind::Flag, 74, kAlways, 1, kAny },
    { OdDbDimVariable::kDimtol, "DIMTOL", Kind::Flag, 71, kAlways, 0, kAny },
    { OdDbDimVariable::kDimtolj, "DIMTOLJ", Kind::Integer, 283, kR13, 1, { 0, 2 } },
    { OdDbDimVariable::kDimtp, "DIMTP", Kind::Real, 47, kAlways, 0, kAny },
    { OdDbDimVariable::kDimtsz, "DIMTSZ", Kind::Real, 142, kAlways, 0, kNotNegative },
    { OdDbDimVariable::kDimtvp, "DIMTVP", Kind::Real, 145, kAlways, 0, kAny },
    { OdDbDimVariable::kDimtxsty, "DIMTXSTY", Kind::TextStyle, 340, kR13, 0, kAny },
    { OdDbDimVariable::kDimtxt, "DIMTXT", Kind::Real, 140, kAlways, 0.18, kPositive },
    { OdDbDimVariable::kDimtzin, "DIMTZIN", Kind::Integer, 284, kR13, 0, { 0, 15 } },
    { OdDbDimVariable::kDimupt, "DIMUPT", Kind::Flag, 288, kR13, 0, kAny },
    { OdDbDimVariable::kDimzin, "DIMZIN", Kind::Integer, 78, kAlways, 0, { 0, 15 } },
    { OdDbDimVariable::kDimfxl,
      "DIMFXL",
      Kind::Real,
      49,
      kR2007,
      1.0,
      kNotNegative,
      { "ACAD_DSTYLE_DIMEXT_LENGTH", 378, 1040 } },
    { OdDbDimVariable::kDimfxlon,
      "DIMFXLON",
      Kind::Flag,
      290,
      kR2007,
      0,
      kAny,
      { "ACAD_DSTYLE_DIMEXT_ENABLED", 383, 1070 } },
    { OdDbDimVariable::kDimjogang,
      "DIMJOGANG",
      Kind::Angle,
      50,
      kR2007,
      45,
      kJogAngle,
      { "ACAD_DSTYLE_DIMJOGGED_JOGANGLE_SYMBOL", 384, 1040 } },
    { OdDbDimVariable::kDimtfill,
      "DIMTFILL",
      Kind::Integer,
      69,
      kR2007,
      0,
      { 0, 2 },
      { "ACAD_DSTYLE_DIMTEXT_FILL", 376, 1070 } },
    { OdDbDimVariable::kDimtfillclr,
      "DIMTFILLCLR",
      Kind::Color,
      70,
      kR2007,
      0,
      { 0, 256 },
      { "ACAD_DSTYLE_DIMTEXT_FILL", 377, 1004 } },
    { OdDbDimVariable::kDimarcsym,
      "DIMARCSYM",
      Kind::Integer,
      90,
      kR2007,
      0,
      { 0, 2 },
      { "ACAD_DSTYLE_DIMARC_LENGTH_SYMBOL", 379, 1070 } },
    { OdDbDimVariable::kDimltype,
      "DIMLTYPE",
      Kind::LineStyle,
      345,
      kR2007,
      0,
      kAny,
      { "ACAD_DSTYLE_DIM_LINETYPE", 380, 1005 } },
    { OdDbDimVariable::kDimltex1,
      "DIMLTEX1",
      Kind::LineStyle,
      346,
      kR2007,
      0,
      kAny,
      { "ACAD_DSTYLE_DIM_EXT1_LINETYPE", 381, 1005 } },
    { OdDbDimVariable::kDimltex2,
      "DIMLTEX2",
      Kind::LineStyle,
      347,
      kR2007,
      0,
      kAny,
      { "ACAD_DSTYLE_DIM_EXT2_LINETYPE", 382, 1005 } },
    { OdDbDimVariable::kDimtxtdirection, "DIMTXTDIRECTION", Kind::Flag, 294, kR2010, 0, kAny },
    { OdDbDimVariable::kDimmzf,
      "DIMMZF",
      Kind::Real,
      0,
      kNever,
      100.0,
      kPositive,
      { "KVSTANDARDS", 0, 1040 } },
    { OdDbDimVariable::kDimmzs,
      "DIMMZS",
      Kind::Text,
      0,
      kNever,
      0,
      kAny,
      { "KVSTANDARDS", 0, 1000 } },
    { OdDbDimVariable::kDimaltmzf,
      "DIMALTMZF",
      Kind::Real,
      0,
      kNever,
      100.0,
      kPositive,
      { "KVSTANDARDS", 0, 1040 } },
    { OdDbDimVariable::kDimaltmzs,
      "DIMALTMZS",
      Kind::Text,
      0,
      kNever,
      0,
      kAny,
      { "KVSTANDARDS", 0, 1000 } },
};

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < std::size(kVariables); ++i) {
        if (kVariables[i].variable != OdDbDimVariable(i)) {
            return false;
        }
    }
    return std::size(kVariables) == std::size_t(OdDbDimVariable::kDimaltmzs) + 1;
}

static_assert(isInOrder());

} // namespace

const CKvDimensionVariable &dimensionVariable(OdDbDimVariable variable)
{
    return kVariables[std::size_t(variable)];
}

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
    { "DIMADEC", OdDbDimVariable::kDimadec, Kind::Integer, 179, kR2000, 0, { -1, 8 } },
    { "DIMALT", OdDbDimVariable::kDimalt, Kind::Flag, 170, kAlways, 0, kAny },
    { "DIMALTD", OdDbDimVariable::kDimaltd, Kind::Integer, 171, kAlways, 2, { 0, 8 } },
    { "DIMALTF", OdDbDimVariable::kDimaltf, Kind::Real, 143, kAlways, 25.4, kPositive },
    { "DIMALTRND", OdDbDimVariable::kDimaltrnd, Kind::Real, 148, kR2000, 0, kNotNegative },
    { "DIMALTTD", OdDbDimVariable::kDimalttd, Kind::Integer, 274, kR13, 2, { 0, 8 } },
    { "DIMALTTZ", OdDbDimVariable::kDimalttz, Kind::Integer, 286, kR13, 0, { 0, 15 } },
    { "DIMALTU", OdDbDimVariable::kDimaltu, Kind::Integer, 273, kR13, 2, { 1, 8 } },
    { "DIMALTZ", OdDbDimVariable::kDimaltz, Kind::Integer, 285, kR13, 0, { 0, 15 } },
    { "DIMAPOST", OdDbDimVariable::kDimapost, Kind::Text, 4, kAlways, 0, kAny },
    { "DIMASZ", OdDbDimVariable::kDimasz, Kind::Real, 41, kAlways, 0.18, kNotNegative },
    { "DIMATFIT", OdDbDimVariable::kDimatfit, Kind::Integer, 289, kR2000, 3, { 0, 3 } },
    { "DIMAUNIT", OdDbDimVariable::kDimaunit, Kind::Integer, 275, kR13, 0, { 0, 4 } },
    { "DIMAZIN", OdDbDimVariable::kDimazin, Kind::Integer, 79, kR2000, 0, { 0, 3 } },
    { "DIMBLK", OdDbDimVariable::kDimblk, Kind::Block, 342, kAlways, 0, kAny },
    { "DIMBLK1", OdDbDimVariable::kDimblk1, Kind::Block, 343, kAlways, 0, kAny },
    { "DIMBLK2", OdDbDimVariable::kDimblk2, Kind::Block, 344, kAlways, 0, kAny },
    { "DIMCEN", OdDbDimVariable::kDimcen, Kind::Real, 141, kAlways, 0.09, kAny },
    { "DIMCLRD", OdDbDimVariable::kDimclrd, Kind::Color, 176, kAlways, 0, { 0, 256 } },
    { "DIMCLRE", OdDbDimVariable::kDimclre, Kind::Color, 177, kAlways, 0, { 0, 256 } },
    { "DIMCLRT", OdDbDimVariable::kDimclrt, Kind::Color, 178, kAlways, 0, { 0, 256 } },
    { "DIMDEC", OdDbDimVariable::kDimdec, Kind::Integer, 271, kR13, 4, { 0, 8 } },
    { "DIMDLE", OdDbDimVariable::kDimdle, Kind::Real, 46, kAlways, 0, kNotNegative },
    { "DIMDLI", OdDbDimVariable::kDimdli, Kind::Real, 43, kAlways, 0.38, kNotNegative },
    { "DIMDSEP", OdDbDimVariable::kDimdsep, Kind::Integer, 278, kR2000, 46, { 0, 32767 } },
    { "DIMEXE", OdDbDimVariable::kDimexe, Kind::Real, 44, kAlways, 0.18, kNotNegative },
    { "DIMEXO", OdDbDimVariable::kDimexo, Kind::Real, 42, kAlways, 0.0625, kNotNegative },
    { "DIMFRAC", OdDbDimVariable::kDimfrac, Kind::Integer, 276, kR2000, 0, { 0, 2 } },
    { "DIMGAP", OdDbDimVariable::kDimgap, Kind::Real, 147, kAlways, 0.09, kAny },
    { "DIMJUST", OdDbDimVariable::kDimjust, Kind::Integer, 280, kR13, 0, { 0, 4 } },
    { "DIMLDRBLK", OdDbDimVariable::kDimldrblk, Kind::Block, 341, kR2000, 0, kAny },
    { "DIMLFAC", OdDbDimVariable::kDimlfac, Kind::Real, 144, kAlways, 1.0, kAny },
    { "DIMLIM", OdDbDimVariable::kDimlim, Kind::Flag, 72, kAlways, 0, kAny },
    { "DIMLUNIT", OdDbDimVariable::kDimlunit, Kind::Integer, 277, kR2000, 2, { 1, 6 } },
    { "DIMLWD", OdDbDimVariable::kDimlwd, Kind::LineWeight, 371, kR2000, -2, { -3, 211 } },
    { "DIMLWE", OdDbDimVariable::kDimlwe, Kind::LineWeight, 372, kR2000, -2, { -3, 211 } },
    { "DIMPOST", OdDbDimVariable::kDimpost, Kind::Text, 3, kAlways, 0, kAny },
    { "DIMRND", OdDbDimVariable::kDimrnd, Kind::Real, 45, kAlways, 0, kNotNegative },
    { "DIMSAH", OdDbDimVariable::kDimsah, Kind::Flag, 173, kAlways, 0, kAny },
    { "DIMSCALE", OdDbDimVariable::kDimscale, Kind::Real, 40, kAlways, 1.0, kNotNegative },
    { "DIMSD1", OdDbDimVariable::kDimsd1, Kind::Flag, 281, kR13, 0, kAny },
    { "DIMSD2", OdDbDimVariable::kDimsd2, Kind::Flag, 282, kR13, 0, kAny },
    { "DIMSE1", OdDbDimVariable::kDimse1, Kind::Flag, 75, kAlways, 0, kAny },
    { "DIMSE2", OdDbDimVariable::kDimse2, Kind::Flag, 76, kAlways, 0, kAny },
    { "DIMSOXD", OdDbDimVariable::kDimsoxd, Kind::Flag, 175, kAlways, 0, kAny },
    { "DIMTAD", OdDbDimVariable::kDimtad, Kind::Integer, 77, kAlways, 0, { 0, 4 } },
    { "DIMTDEC", OdDbDimVariable::kDimtdec, Kind::Integer, 272, kR13, 4, { 0, 8 } },
    { "DIMTFAC", OdDbDimVariable::kDimtfac, Kind::Real, 146, kAlways, 1.0, kPositive },
    { "DIMTIH", OdDbDimVariable::kDimtih, Kind::Flag, 73, kAlways, 1, kAny },
    { "DIMTIX", OdDbDimVariable::kDimtix, Kind::Flag, 174, kAlways, 0, kAny },
    { "DIMTM", OdDbDimVariable::kDimtm, Kind::Real, 48, kAlways, 0, kAny },
    { "DIMTMOVE", OdDbDimVariable::kDimtmove, Kind::Integer, 279, kR2000, 0, { 0, 2 } },
    { "DIMTOFL", OdDbDimVariable::kDimtofl, Kind::Flag, 172, kAlways, 0, kAny },
    { "DIMTOH", OdDbDimVariable::kDimtoh, Kind::Flag, 74, kAlways, 1, kAny },
    { "DIMTOL", OdDbDimVariable::kDimtol, Kind::Flag, 71, kAlways, 0, kAny },
    { "DIMTOLJ", OdDbDimVariable::kDimtolj, Kind::Integer, 283, kR13, 1, { 0, 2 } },
    { "DIMTP", OdDbDimVariable::kDimtp, Kind::Real, 47, kAlways, 0, kAny },
    { "DIMTSZ", OdDbDimVariable::kDimtsz, Kind::Real, 142, kAlways, 0, kNotNegative },
    { "DIMTVP", OdDbDimVariable::kDimtvp, Kind::Real, 145, kAlways, 0, kAny },
    { "DIMTXSTY", OdDbDimVariable::kDimtxsty, Kind::TextStyle, 340, kR13, 0, kAny },
    { "DIMTXT", OdDbDimVariable::kDimtxt, Kind::Real, 140, kAlways, 0.18, kPositive },
    { "DIMTZIN", OdDbDimVariable::kDimtzin, Kind::Integer, 284, kR13, 0, { 0, 15 } },
    { "DIMUPT", OdDbDimVariable::kDimupt, Kind::Flag, 288, kR13, 0, kAny },
    { "DIMZIN", OdDbDimVariable::kDimzin, Kind::Integer, 78, kAlways, 0, { 0, 15 } },
    { "DIMFXL",
      OdDbDimVariable::kDimfxl,
      Kind::Real,
      49,
      kR2007,
      1.0,
      kNotNegative,
      { "ACAD_DSTYLE_DIMEXT_LENGTH", 378, 1040 } },
    { "DIMFXLON",
      OdDbDimVariable::kDimfxlon,
      Kind::Flag,
      290,
      kR2007,
      0,
      kAny,
      { "ACAD_DSTYLE_DIMEXT_ENABLED", 383, 1070 } },
    { "DIMJOGANG",
      OdDbDimVariable::kDimjogang,
      Kind::Angle,
      50,
      kR2007,
      45,
      kJogAngle,
      { "ACAD_DSTYLE_DIMJOGGED_JOGANGLE_SYMBOL", 384, 1040 } },
    { "DIMTFILL",
      OdDbDimVariable::kDimtfill,
      Kind::Integer,
      69,
      kR2007,
      0,
      { 0, 2 },
      { "ACAD_DSTYLE_DIMTEXT_FILL", 376, 1070 } },
    { "DIMTFILLCLR",
      OdDbDimVariable::kDimtfillclr,
      Kind::Color,
      70,
      kR2007,
      0,
      { 0, 256 },
      { "ACAD_DSTYLE_DIMTEXT_FILL", 377, 1004 } },
    { "DIMARCSYM",
      OdDbDimVariable::kDimarcsym,
      Kind::Integer,
      90,
      kR2007,
      0,
      { 0, 2 },
      { "ACAD_DSTYLE_DIMARC_LENGTH_SYMBOL", 379, 1070 } },
    { "DIMLTYPE",
      OdDbDimVariable::kDimltype,
      Kind::LineStyle,
      345,
      kR2007,
      0,
      kAny,
      { "ACAD_DSTYLE_DIM_LINETYPE", 380, 1005 } },
    { "DIMLTEX1",
      OdDbDimVariable::kDimltex1,
      Kind::LineStyle,
      346,
      kR2007,
      0,
      kAny,
      { "ACAD_DSTYLE_DIM_EXT1_LINETYPE", 381, 1005 } },
    { "DIMLTEX2",
      OdDbDimVariable::kDimltex2,
      Kind::LineStyle,
      347,
      kR2007,
      0,
      kAny,
      { "ACAD_DSTYLE_DIM_EXT2_LINETYPE", 382, 1005 } },
    { "DIMTXTDIRECTION", OdDbDimVariable::kDimtxtdirection, Kind::Flag, 294, kR2010, 0, kAny },
    { "DIMMZF",
      OdDbDimVariable::kDimmzf,
      Kind::Real,
      0,
      kNever,
      100.0,
      kPositive,
      { "KVSTANDARDS", 0, 1040 } },
    { "DIMMZS",
      OdDbDimVariable::kDimmzs,
      Kind::Text,
      0,
      kNever,
      0,
      kAny,
      { "KVSTANDARDS", 0, 1000 } },
    { "DIMALTMZF",
      OdDbDimVariable::kDimaltmzf,
      Kind::Real,
      0,
      kNever,
      100.0,
      kPositive,
      { "KVSTANDARDS", 0, 1040 } },
    { "DIMALTMZS",
      OdDbDimVariable::kDimaltmzs,
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

// SPDX-License-Identifier: MIT
#include "dimStyleProperties.h"

#include "CKvObjectAnnotationContext.h"
#include "OdDbDatabase.h"
#include "OdDbDimStyleTableRecord.h"
#include "lineweightNames.h"
#include "valueText.h"

#include <QCoreApplication>

#include <iterator>

namespace
{

using Style = OdDbDimStyleTableRecord;
using Drawing = OdDbDatabase;

// One text for each class of values. Unsigned numbers are widened without a sign, signed ones with.

CKvString textOfValue(std::int16_t value)
{
    return integerToText(value);
}

CKvString textOfValue(std::uint16_t value)
{
    return integerToText(value);
}

CKvString textOfValue(std::uint8_t value)
{
    return integerToText(value);
}

CKvString textOfValue(double value)
{
    return realToText(value);
}

CKvString textOfValue(bool value)
{
    return booleanToText(value);
}

CKvString textOfValue(const OdString &value)
{
    return stringToText(value);
}

CKvString textOfValue(const OdCmColor &value)
{
    return colorToText(value);
}

CKvString textOfValue(OdDbHardPointerId value)
{
    return objectIdToText(value);
}

CKvString textOfValue(OdDb::LineWeight value)
{
    return ConvertLineweightToName(value);
}

template <auto get> CKvString textOf(const Style &style)
{
    return textOfValue((style.*get)());
}

CKvString annotativeText(const Style &style)
{
    return booleanToText(CKvObjectAnnotationContext::IsAnnotative(style.objectId(), nullptr));
}

template <auto get, auto set, auto setVariable>
void copyValue(Drawing &drawing, Style &target, const Style &source)
{
    (target.*set)((source.*get)());
    (drawing.*setVariable)((source.*get)());
}

/// A property that a repair copies by its value.
template <auto get, auto set, auto setVariable>
constexpr CKvDimStyleProperty copied(const char *key, const char *label)
{
    return { key, &textOf<get>, &copyValue<get, set, setVariable>, label };
}

/// An arrow: its block has to be brought over first.
template <auto get> constexpr CKvDimStyleProperty arrow(const char *key, const char *label)
{
    return { key, &textOf<get>, nullptr, label };
}

/// In the order of the comparison. What is not here is never compared.
constexpr CKvDimStyleProperty kProperties[] = {
    copied<&Style::dimadec, &Style::setDimadec, &Drawing::setDIMADEC>(
        "DIMadec", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Angle precision")),
    copied<&Style::dimalt, &Style::setDimalt, &Drawing::setDIMALT>(
        "DIMalt", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Alternate UnitSystem")),
    copied<&Style::dimaltd, &Style::setDimaltd, &Drawing::setDIMALTD>(
        "DIMaltd", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Alt precision")),
    copied<&Style::dimaltf, &Style::setDimaltf, &Drawing::setDIMALTF>(
        "DIMaltf", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Alt scale")),
    copied<&Style::dimaltrnd, &Style::setDimaltrnd, &Drawing::setDIMALTRND>(
        "DIMaltrnd", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Alt roundoff")),
    copied<&Style::dimalttd, &Style::setDimalttd, &Drawing::setDIMALTTD>(
        "DIMalttd", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Alt tol precision")),
    copied<&Style::dimalttz, &Style::setDimalttz, &Drawing::setDIMALTTZ>(
        "DIMalttz", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Alt tol zeroes")),
    copied<&Style::dimaltu, &Style::setDimaltu, &Drawing::setDIMALTU>(
        "DIMaltu", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Alt UnitSystem")),
    copied<&Style::dimaltz, &Style::setDimaltz, &Drawing::setDIMALTZ>(
        "DIMaltz", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Alt zeroes")),
    copied<&Style::dimapost, &Style::setDimapost, &Drawing::setDIMAPOST>(
        "DIMapost", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Alt prefix and suffix")),
    copied<&Style::dimasz, &Style::setDimasz, &Drawing::setDIMASZ>(
        "DIMasz", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Arrow size")),
    copied<&Style::dimatfit, &Style::setDimatfit, &Drawing::setDIMATFIT>(
        "DIMatfit", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Fit arrow and text")),
    copied<&Style::dimaunit, &Style::setDimaunit, &Drawing::setDIMAUNIT>(
        "DIMaunit", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Angle format")),
    copied<&Style::dimazin, &Style::setDimazin, &Drawing::setDIMAZIN>(
        "DIMazin", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Angle zero suppression")),
    arrow<&Style::dimblk>("DIMblk", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Arrow")),
    arrow<&Style::dimblk1>("DIMblk1", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Arrow 1")),
    arrow<&Style::dimblk2>("DIMblk2", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Arrow 2")),
    copied<&Style::dimcen, &Style::setDimcen, &Drawing::setDIMCEN>(
        "DIMcen", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Center mark size")),
    copied<&Style::dimclrd, &Style::setDimclrd, &Drawing::setDIMCLRD>(
        "DIMclrd", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Dim line color")),
    copied<&Style::dimclre, &Style::setDimclre, &Drawing::setDIMCLRE>(
        "DIMclre", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Ext line color")),
    copied<&Style::dimclrt, &Style::setDimclrt, &Drawing::setDIMCLRT>(
        "DIMclrt", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Text color")),
    copied<&Style::dimdec, &Style::setDimdec, &Drawing::setDIMDEC>(
        "DIMdec", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Precision")),
    copied<&Style::dimdle, &Style::setDimdle, &Drawing::setDIMDLE>(
        "DIMdle", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Dim line ext")),
    copied<&Style::dimdli, &Style::setDimdli, &Drawing::setDIMDLI>(
        "DIMdli", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Dim line spacing")),
    copied<&Style::dimdsep, &Style::setDimdsep, &Drawing::setDIMDSEP>(
        "DIMdsep", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Decimal separator")),
    copied<&Style::dimexe, &Style::setDimexe, &Drawing::setDIMEXE>(
        "DIMexe", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Ext line extension")),
    copied<&Style::dimexo, &Style::setDimexo, &Drawing::setDIMEXO>(
        "DIMexo", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Ext line offset")),
    copied<&Style::dimfrac, &Style::setDimfrac, &Drawing::setDIMFRAC>(
        "DIMfrac", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Fraction format")),
    copied<&Style::dimgap, &Style::setDimgap, &Drawing::setDIMGAP>(
        "DIMgap", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Text offset")),
    copied<&Style::dimjust, &Style::setDimjust, &Drawing::setDIMJUST>(
        "DIMjust", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Text pos hor")),
    copied<&Style::dimldrblk, &Style::setDimldrblk, &Drawing::setDIMLDRBLK>(
        "DIMldrblk", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Leader arrow")),
    copied<&Style::dimlfac, &Style::setDimlfac, &Drawing::setDIMLFAC>(
        "DIMlfac", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Length scale")),
    copied<&Style::dimlim, &Style::setDimlim, &Drawing::setDIMLIM>(
        "DIMlim", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Tol limits")),
    copied<&Style::dimlunit, &Style::setDimlunit, &Drawing::setDIMLUNIT>(
        "DIMlunit", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Length UnitSystem")),
    copied<&Style::dimlwd, &Style::setDimlwd, &Drawing::setDIMLWD>(
        "DIMlwd", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Dim line lineweight")),
    copied<&Style::dimlwe, &Style::setDimlwe, &Drawing::setDIMLWE>(
        "DIMlwe", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Ext line lineweight")),
    copied<&Style::dimpost, &Style::setDimpost, &Drawing::setDIMPOST>(
        "DIMpost", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Text prefix and suffix")),
    copied<&Style::dimrnd, &Style::setDimrnd, &Drawing::setDIMRND>(
        "DIMrnd", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Roundoff")),
    copied<&Style::dimsah, &Style::setDimsah, &Drawing::setDIMSAH>(
        "DIMsah", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Separate arrows")),
    copied<&Style::dimscale, &Style::setDimscale, &Drawing::setDIMSCALE>(
        "DIMscale", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Overall scale")),
    copied<&Style::dimsd1, &Style::setDimsd1, &Drawing::setDIMSD1>(
        "DIMsd1", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "No dim line 1")),
    copied<&Style::dimsd2, &Style::setDimsd2, &Drawing::setDIMSD2>(
        "DIMsd2", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "No dim line 2")),
    copied<&Style::dimse1, &Style::setDimse1, &Drawing::setDIMSE1>(
        "DIMse1", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "No ext line 1")),
    copied<&Style::dimse2, &Style::setDimse2, &Drawing::setDIMSE2>(
        "DIMse2", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "No ext line 2")),
    copied<&Style::dimsoxd, &Style::setDimsoxd, &Drawing::setDIMSOXD>(
        "DIMsoxd", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "No dim lines outside")),
    copied<&Style::dimtad, &Style::setDimtad, &Drawing::setDIMTAD>(
        "DIMtad", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Text pos vert")),
    copied<&Style::dimtdec, &Style::setDimtdec, &Drawing::setDIMTDEC>(
        "DIMtdec", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Tol precision")),
    copied<&Style::dimtfac, &Style::setDimtfac, &Drawing::setDIMTFAC>(
        "DIMtfac", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Tol text scale")),
    copied<&Style::dimtih, &Style::setDimtih, &Drawing::setDIMTIH>(
        "DIMtih", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Text inside align")),
    copied<&Style::dimtix, &Style::setDimtix, &Drawing::setDIMTIX>(
        "DIMtix", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Text inside")),
    copied<&Style::dimtm, &Style::setDimtm, &Drawing::setDIMTM>(
        "DIMtm", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Tol dev lower")),
    copied<&Style::dimtmove, &Style::setDimtmove, &Drawing::setDIMTMOVE>(
        "DIMtmove", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Fit text movement")),
    copied<&Style::dimtofl, &Style::setDimtofl, &Drawing::setDIMTOFL>(
        "DIMtofl", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Dim line forced")),
    copied<&Style::dimtoh, &Style::setDimtoh, &Drawing::setDIMTOH>(
        "DIMtoh", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Text outside align")),
    copied<&Style::dimtol, &Style::setDimtol, &Drawing::setDIMTOL>(
        "DIMtol", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Tol deviation")),
    copied<&Style::dimtolj, &Style::setDimtolj, &Drawing::setDIMTOLJ>(
        "DIMtolj", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Tol pos vert")),
    copied<&Style::dimtp, &Style::setDimtp, &Drawing::setDIMTP>(
        "DIMtp", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Tol dev upper")),
    copied<&Style::dimtsz, &Style::setDimtsz, &Drawing::setDIMTSZ>(
        "DIMtsz", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Stroke size")),
    copied<&Style::dimtvp, &Style::setDimtvp, &Drawing::setDIMTVP>(
        "DIMtvp", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Text pos vert")),
    copied<&Style::dimtxsty, &Style::setDimtxsty, &Drawing::setDIMTXSTY>(
        "DIMtxsty", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "TextStyle")),
    copied<&Style::dimtxt, &Style::setDimtxt, &Drawing::setDIMTXT>(
        "DIMtxt", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Text height")),
    copied<&Style::dimtzin, &Style::setDimtzin, &Drawing::setDIMTZIN>(
        "DIMtzin", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Tol zero suppression")),
    copied<&Style::dimupt, &Style::setDimupt, &Drawing::setDIMUPT>(
        "DIMupt", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "User-positioned text")),
    copied<&Style::dimzin, &Style::setDimzin, &Drawing::setDIMZIN>(
        "DIMzin", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Zero suppression")),
    copied<&Style::dimfxl, &Style::setDimfxl, &Drawing::setDIMFXL>(
        "DIMfxl", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Fixed ext line length")),
    copied<&Style::dimfxlon, &Style::setDimfxlon, &Drawing::setDIMFXLON>(
        "DIMfxlon", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Fixed ext line enabled")),
    copied<&Style::dimjogang, &Style::setDimjogang, &Drawing::setDIMJOGANG>(
        "DIMjogang", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Large rad dim jog angle")),
    copied<&Style::dimtfill, &Style::setDimtfill, &Drawing::setDIMTFILL>(
        "DIMtfill", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Text background enabled")),
    copied<&Style::dimtfillclr, &Style::setDimtfillclr, &Drawing::setDIMTFILLCLR>(
        "DIMtfillclr", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Text background color")),
    copied<&Style::dimarcsym, &Style::setDimarcsym, &Drawing::setDIMARCSYM>(
        "DIMarcsym", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Arc len symbol")),
    copied<&Style::dimltype, &Style::setDimltype, &Drawing::setDIMLTYPE>(
        "DIMltype", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Dim line linetype")),
    copied<&Style::dimltex1, &Style::setDimltex1, &Drawing::setDIMLTEX1>(
        "DIMltex1", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Ext line 1 linetype")),
    copied<&Style::dimltex2, &Style::setDimltex2, &Drawing::setDIMLTEX2>(
        "DIMltex2", QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Ext line 2 linetype")),
    copied<&Style::dimtxtdirection, &Style::setDimtxtdirection, &Drawing::setDIMTXTDIRECTION>(
        "DIMtxtdirection", nullptr),
    copied<&Style::dimmzf, &Style::setDimmzf, &Drawing::setDIMMZF>("DIMmzf", nullptr),
    copied<&Style::dimmzs, &Style::setDimmzs, &Drawing::setDIMMZS>("DIMmzs", nullptr),
    copied<&Style::dimaltmzf, &Style::setDimaltmzf, &Drawing::setDIMALTMZF>("DIMaltmzf", nullptr),
    copied<&Style::dimaltmzs, &Style::setDimaltmzs, &Drawing::setDIMALTMZS>("DIMaltmzs", nullptr),
    { "ANNOTATIVE",
      &annotativeText,
      nullptr,
      QT_TRANSLATE_NOOP("CKvDimStylePluginImpl", "Annotative") },
};

} // namespace

const CKvDimStyleProperty *begin(CKvDimStyleProperties)
{
    return std::begin(kProperties);
}

const CKvDimStyleProperty *end(CKvDimStyleProperties)
{
    return std::end(kProperties);
}

// SPDX-License-Identifier: MIT
#include "dimSettings.h"

#include "CKvDrawingStore.h"
#include "CKvObjectAnnotationContext.h"
#include "OdDbDatabase.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdError.h"
#include "angles.h"
#include "colorFromText.h"
#include "dimensionPointers.h"
#include "lineweightNames.h"
#include "valueFromText.h"
#include "valueText.h"

#include <iterator>
#include <type_traits>
#include <utility>

namespace
{

using Style = OdDbDimStyleTableRecord;
using Drawing = OdDbDatabase;
using Variable = OdDbDimVariable;

bool isNone(const QString &answer)
{
    return answer == QLatin1String(".");
}

template <class Value> CKvString textOfValue(const Value &value)
{
    if constexpr (std::is_same_v<Value, bool>) {
        return booleanToText(value);
    } else if constexpr (std::is_same_v<Value, OdDb::LineWeight>) {
        return ConvertLineweightToName(value);
    } else if constexpr (std::is_integral_v<Value>) {
        return integerToText(value);
    } else if constexpr (std::is_same_v<Value, double>) {
        return realToText(value);
    } else if constexpr (std::is_same_v<Value, OdString>) {
        return stringToText(value);
    } else if constexpr (std::is_same_v<Value, OdCmColor>) {
        return colorToText(value);
    } else {
        return objectIdToText(value);
    }
}

/// The record of that name in the table that the setting points into.
OdDbHardPointerId
recordFromText(const Style &style, const CKvDimensionVariable &variable, const QString &answer)
{
    if (isNone(answer)) {
        return {};
    }
    CKvDrawingStore &store = style.database()->store();
    const CKvTableKind kind = tableOf(variable);
    CKvObjectSlot *record = kind == CKvTableKind::Block
        ? findArrowBlock(store, store.format().codec.encode(answer))
        : store.table(kind).find(answer);
    if (!record) {
        throw OdError(OdResult::kInvalidInput,
                      QStringLiteral("The drawing has nothing of the name \"%1\".")
                          .arg(answer)
                          .toStdString());
    }
    return OdDbHardPointerId(record->id());
}

std::int64_t integerFromText(const CKvDimensionVariable &variable, const QString &answer)
{
    const bool isSeparator = variable.variable == Variable::kDimdsep;
    if (isSeparator && answer.length() == 1 && !answer[0].isDigit()) {
        return answer[0].unicode();
    }
    return wholeNumberFromText(
        answer, std::int64_t(variable.range.least), std::int64_t(variable.range.most));
}

double realFromText(const CKvDimensionVariable &variable, const QString &answer)
{
    // Users write degrees; everybody else has radians.
    const double unit = variable.kind == CKvDimensionVariable::Kind::Angle ? kRadiansPerDegree : 1;
    return unit * numberFromText(answer, variable.range.least / unit, variable.range.most / unit);
}

template <class Value>
Value valueFromText(const Style &style, const CKvDimensionVariable &variable, const QString &answer)
{
    if constexpr (std::is_same_v<Value, bool>) {
        return flagFromText(answer);
    } else if constexpr (std::is_same_v<Value, OdDb::LineWeight>) {
        return lineWeightFromText(answer);
    } else if constexpr (std::is_integral_v<Value>) {
        return Value(integerFromText(variable, answer));
    } else if constexpr (std::is_same_v<Value, double>) {
        return realFromText(variable, answer);
    } else if constexpr (std::is_same_v<Value, OdString>) {
        return isNone(answer) ? OdString() : OdString(answer);
    } else if constexpr (std::is_same_v<Value, OdCmColor>) {
        return entityColorFromText(answer);
    } else {
        return recordFromText(style, variable, answer);
    }
}

template <auto get> CKvString textOf(const Style &style)
{
    return textOfValue((style.*get)());
}

template <auto get, auto set, Variable variable>
void setFromText(Style &style, const QString &answer)
{
    using Value = decltype((style.*get)());
    const auto value = valueFromText<Value>(style, dimensionVariable(variable), answer);
    const CKvString before = textOf<get>(style);
    (style.*set)(value);
    // What an older drawing has no place for stays as it was.
    if (textOf<get>(style) == before && textOfValue(value) != before) {
        throw OdError(OdResult::kInvalidInput,
                      std::string("The version of this drawing has no place for ")
                          + dimensionVariable(variable).name + ".");
    }
}

template <auto get, auto setVariable> void copyToHeader(Drawing &drawing, const Style &style)
{
    (drawing.*setVariable)((style.*get)());
}

template <auto get, auto set, auto setVariable, Variable variable>
constexpr CKvDimSetting row(const char *name)
{
    using Value = decltype((std::declval<const Style &>().*get)());
    return { name,
             std::is_same_v<Value, OdString>,
             &textOf<get>,
             &setFromText<get, set, variable>,
             &copyToHeader<get, setVariable> };
}

CKvString annotativeText(const Style &style)
{
    return booleanToText(CKvObjectAnnotationContext::IsAnnotative(style.objectId(), nullptr));
}

void setAnnotative(Style &style, const QString &answer)
{
    CKvObjectAnnotationContext::SetAnnotative(
        style.objectId(), flagFromText(answer), /*matchesOrientation*/ false);
}

constexpr CKvDimSetting kSettings[] = {
    row<&Style::dimadec, &Style::setDimadec, &Drawing::setDIMADEC, Variable::kDimadec>("DIMADEC"),
    row<&Style::dimalt, &Style::setDimalt, &Drawing::setDIMALT, Variable::kDimalt>("DIMALT"),
    row<&Style::dimaltd, &Style::setDimaltd, &Drawing::setDIMALTD, Variable::kDimaltd>("DIMALTD"),
    row<&Style::dimaltf, &Style::setDimaltf, &Drawing::setDIMALTF, Variable::kDimaltf>("DIMALTF"),
    row<&Style::dimaltrnd, &Style::setDimaltrnd, &Drawing::setDIMALTRND, Variable::kDimaltrnd>(
        "DIMALTRND"),
    row<&Style::dimalttd, &Style::setDimalttd, &Drawing::setDIMALTTD, Variable::kDimalttd>(
        "DIMALTTD"),
    row<&Style::dimalttz, &Style::setDimalttz, &Drawing::setDIMALTTZ, Variable::kDimalttz>(
        "DIMALTTZ"),
    row<&Style::dimaltu, &Style::setDimaltu, &Drawing::setDIMALTU, Variable::kDimaltu>("DIMALTU"),
    row<&Style::dimaltz, &Style::setDimaltz, &Drawing::setDIMALTZ, Variable::kDimaltz>("DIMALTZ"),
    row<&Style::dimapost, &Style::setDimapost, &Drawing::setDIMAPOST, Variable::kDimapost>(
        "DIMAPOST"),
    row<&Style::dimasz, &Style::setDimasz, &Drawing::setDIMASZ, Variable::kDimasz>("DIMASZ"),
    row<&Style::dimatfit, &Style::setDimatfit, &Drawing::setDIMATFIT, Variable::kDimatfit>(
        "DIMATFIT"),
    row<&Style::dimaunit, &Style::setDimaunit, &Drawing::setDIMAUNIT, Variable::kDimaunit>(
        "DIMAUNIT"),
    row<&Style::dimazin, &Style::setDimazin, &Drawing::setDIMAZIN, Variable::kDimazin>("DIMAZIN"),
    row<&Style::dimblk, &Style::setDimblk, &Drawing::setDIMBLK, Variable::kDimblk>("DIMBLK"),
    row<&Style::dimblk1, &Style::setDimblk1, &Drawing::setDIMBLK1, Variable::kDimblk1>("DIMBLK1"),
    row<&Style::dimblk2, &Style::setDimblk2, &Drawing::setDIMBLK2, Variable::kDimblk2>("DIMBLK2"),
    row<&Style::dimcen, &Style::setDimcen, &Drawing::setDIMCEN, Variable::kDimcen>("DIMCEN"),
    row<&Style::dimclrd, &Style::setDimclrd, &Drawing::setDIMCLRD, Variable::kDimclrd>("DIMCLRD"),
    row<&Style::dimclre, &Style::setDimclre, &Drawing::setDIMCLRE, Variable::kDimclre>("DIMCLRE"),
    row<&Style::dimclrt, &Style::setDimclrt, &Drawing::setDIMCLRT, Variable::kDimclrt>("DIMCLRT"),
    row<&Style::dimdec, &Style::setDimdec, &Drawing::setDIMDEC, Variable::kDimdec>("DIMDEC"),
    row<&Style::dimdle, &Style::setDimdle, &Drawing::setDIMDLE, Variable::kDimdle>("DIMDLE"),
    row<&Style::dimdli, &Style::setDimdli, &Drawing::setDIMDLI, Variable::kDimdli>("DIMDLI"),
    row<&Style::dimdsep, &Style::setDimdsep, &Drawing::setDIMDSEP, Variable::kDimdsep>("DIMDSEP"),
    row<&Style::dimexe, &Style::setDimexe, &Drawing::setDIMEXE, Variable::kDimexe>("DIMEXE"),
    row<&Style::dimexo, &Style::setDimexo, &Drawing::setDIMEXO, Variable::kDimexo>("DIMEXO"),
    row<&Style::dimfrac, &Style::setDimfrac, &Drawing::setDIMFRAC, Variable::kDimfrac>("DIMFRAC"),
    row<&Style::dimgap, &Style::setDimgap, &Drawing::setDIMGAP, Variable::kDimgap>("DIMGAP"),
    row<&Style::dimjust, &Style::setDimjust, &Drawing::setDIMJUST, Variable::kDimjust>("DIMJUST"),
    row<&Style::dimldrblk, &Style::setDimldrblk, &Drawing::setDIMLDRBLK, Variable::kDimldrblk>(
        "DIMLDRBLK"),
    row<&Style::dimlfac, &Style::setDimlfac, &Drawing::setDIMLFAC, Variable::kDimlfac>("DIMLFAC"),
    row<&Style::dimlim, &Style::setDimlim, &Drawing::setDIMLIM, Variable::kDimlim>("DIMLIM"),
    row<&Style::dimlunit, &Style::setDimlunit, &Drawing::setDIMLUNIT, Variable::kDimlunit>(
        "DIMLUNIT"),
    row<&Style::dimlwd, &Style::setDimlwd, &Drawing::setDIMLWD, Variable::kDimlwd>("DIMLWD"),
    row<&Style::dimlwe, &Style::setDimlwe, &Drawing::setDIMLWE, Variable::kDimlwe>("DIMLWE"),
    row<&Style::dimpost, &Style::setDimpost, &Drawing::setDIMPOST, Variable::kDimpost>("DIMPOST"),
    row<&Style::dimrnd, &Style::setDimrnd, &Drawing::setDIMRND, Variable::kDimrnd>("DIMRND"),
    row<&Style::dimsah, &Style::setDimsah, &Drawing::setDIMSAH, Variable::kDimsah>("DIMSAH"),
    row<&Style::dimscale, &Style::setDimscale, &Drawing::setDIMSCALE, Variable::kDimscale>(
        "DIMSCALE"),
    row<&Style::dimsd1, &Style::setDimsd1, &Drawing::setDIMSD1, Variable::kDimsd1>("DIMSD1"),
    row<&Style::dimsd2, &Style::setDimsd2, &Drawing::setDIMSD2, Variable::kDimsd2>("DIMSD2"),
    row<&Style::dimse1, &Style::setDimse1, &Drawing::setDIMSE1, Variable::kDimse1>("DIMSE1"),
    row<&Style::dimse2, &Style::setDimse2, &Drawing::setDIMSE2, Variable::kDimse2>("DIMSE2"),
    row<&Style::dimsoxd, &Style::setDimsoxd, &Drawing::setDIMSOXD, Variable::kDimsoxd>("DIMSOXD"),
    row<&Style::dimtad, &Style::setDimtad, &Drawing::setDIMTAD, Variable::kDimtad>("DIMTAD"),
    row<&Style::dimtdec, &Style::setDimtdec, &Drawing::setDIMTDEC, Variable::kDimtdec>("DIMTDEC"),
    row<&Style::dimtfac, &Style::setDimtfac, &Drawing::setDIMTFAC, Variable::kDimtfac>("DIMTFAC"),
    row<&Style::dimtih, &Style::setDimtih, &Drawing::setDIMTIH, Variable::kDimtih>("DIMTIH"),
    row<&Style::dimtix, &Style::setDimtix, &Drawing::setDIMTIX, Variable::kDimtix>("DIMTIX"),
    row<&Style::dimtm, &Style::setDimtm, &Drawing::setDIMTM, Variable::kDimtm>("DIMTM"),
    row<&Style::dimtmove, &Style::setDimtmove, &Drawing::setDIMTMOVE, Variable::kDimtmove>(
        "DIMTMOVE"),
    row<&Style::dimtofl, &Style::setDimtofl, &Drawing::setDIMTOFL, Variable::kDimtofl>("DIMTOFL"),
    row<&Style::dimtoh, &Style::setDimtoh, &Drawing::setDIMTOH, Variable::kDimtoh>("DIMTOH"),
    row<&Style::dimtol, &Style::setDimtol, &Drawing::setDIMTOL, Variable::kDimtol>("DIMTOL"),
    row<&Style::dimtolj, &Style::setDimtolj, &Drawing::setDIMTOLJ, Variable::kDimtolj>("DIMTOLJ"),
    row<&Style::dimtp, &Style::setDimtp, &Drawing::setDIMTP, Variable::kDimtp>("DIMTP"),
    row<&Style::dimtsz, &Style::setDimtsz, &Drawing::setDIMTSZ, Variable::kDimtsz>("DIMTSZ"),
    row<&Style::dimtvp, &Style::setDimtvp, &Drawing::setDIMTVP, Variable::kDimtvp>("DIMTVP"),
    row<&Style::dimtxsty, &Style::setDimtxsty, &Drawing::setDIMTXSTY, Variable::kDimtxsty>(
        "DIMTXSTY"),
    row<&Style::dimtxt, &Style::setDimtxt, &Drawing::setDIMTXT, Variable::kDimtxt>("DIMTXT"),
    row<&Style::dimtzin, &Style::setDimtzin, &Drawing::setDIMTZIN, Variable::kDimtzin>("DIMTZIN"),
    row<&Style::dimupt, &Style::setDimupt, &Drawing::setDIMUPT, Variable::kDimupt>("DIMUPT"),
    row<&Style::dimzin, &Style::setDimzin, &Drawing::setDIMZIN, Variable::kDimzin>("DIMZIN"),
    row<&Style::dimfxl, &Style::setDimfxl, &Drawing::setDIMFXL, Variable::kDimfxl>("DIMFXL"),
    row<&Style::dimfxlon, &Style::setDimfxlon, &Drawing::setDIMFXLON, Variable::kDimfxlon>(
        "DIMFXLON"),
    row<&Style::dimjogang, &Style::setDimjogang, &Drawing::setDIMJOGANG, Variable::kDimjogang>(
        "DIMJOGANG"),
    row<&Style::dimtfill, &Style::setDimtfill, &Drawing::setDIMTFILL, Variable::kDimtfill>(
        "DIMTFILL"),
    row<&Style::dimtfillclr,
        &Style::setDimtfillclr,
        &Drawing::setDIMTFILLCLR,
        Variable::kDimtfillclr>("DIMTFILLCLR"),
    row<&Style::dimarcsym, &Style::setDimarcsym, &Drawing::setDIMARCSYM, Variable::kDimarcsym>(
        "DIMARCSYM"),
    row<&Style::dimltype, &Style::setDimltype, &Drawing::setDIMLTYPE, Variable::kDimltype>(
        "DIMLTYPE"),
    row<&Style::dimltex1, &Style::setDimltex1, &Drawing::setDIMLTEX1, Variable::kDimltex1>(
        "DIMLTEX1"),
    row<&Style::dimltex2, &Style::setDimltex2, &Drawing::setDIMLTEX2, Variable::kDimltex2>(
        "DIMLTEX2"),
    row<&Style::dimtxtdirection,
        &Style::setDimtxtdirection,
        &Drawing::setDIMTXTDIRECTION,
        Variable::kDimtxtdirection>("DIMTXTDIRECTION"),
    row<&Style::dimmzf, &Style::setDimmzf, &Drawing::setDIMMZF, Variable::kDimmzf>("DIMMZF"),
    row<&Style::dimmzs, &Style::setDimmzs, &Drawing::setDIMMZS, Variable::kDimmzs>("DIMMZS"),
    row<&Style::dimaltmzf, &Style::setDimaltmzf, &Drawing::setDIMALTMZF, Variable::kDimaltmzf>(
        "DIMALTMZF"),
    row<&Style::dimaltmzs, &Style::setDimaltmzs, &Drawing::setDIMALTMZS, Variable::kDimaltmzs>(
        "DIMALTMZS"),
    { "ANNOTATIVE", false, &annotativeText, &setAnnotative, nullptr },
};

} // namespace

const CKvDimSetting *begin(CKvDimSettings)
{
    return std::begin(kSettings);
}

const CKvDimSetting *end(CKvDimSettings)
{
    return std::end(kSettings);
}

const CKvDimSetting *findDimSetting(const QString &name)
{
    for (const CKvDimSetting &setting : CKvDimSettings()) {
        const QLatin1String known(setting.name);
        if (name.compare(known, Qt::CaseInsensitive) == 0
            || (known.startsWith(QLatin1String("DIM"))
                && name.compare(known.mid(3), Qt::CaseInsensitive) == 0)) {
            return &setting;
        }
    }
    return nullptr;
}

// SPDX-License-Identifier: MIT
#pragma once

#include "OdCmColor.h"
#include "OdDbDimVariable.h"
#include "OdDbObjectId.h"
#include "OdRxObject.h"

/// The dimension settings in the header of a drawing, which a new dimension takes; OdDbDatabase
/// alone derives from it. A variable that the header leaves out has the default of a dimension
/// style. The setters throw OdError_InvalidSysvarValue for a value out of the variable's range, and
/// for an object that is not one of this drawing; what the header of the drawing's version does not
/// have is not written.
class KV_HOST_API OdDbDimensionSettings : public OdRxObject
{
public:
    /// The current dimension style; Standard when the file has none. A name that the drawing lacks
    /// gives the id of a stand-in.
    OdDbObjectId getDIMSTYLE() const;
    void setDIMSTYLE(OdDbObjectId styleId);

    std::int16_t getDIMADEC() const { return std::int16_t(integer(OdDbDimVariable::kDimadec)); }
    bool getDIMALT() const { return flag(OdDbDimVariable::kDimalt); }
    std::uint16_t getDIMALTD() const { return std::uint16_t(integer(OdDbDimVariable::kDimaltd)); }
    double getDIMALTF() const { return real(OdDbDimVariable::kDimaltf); }
    double getDIMALTRND() const { return real(OdDbDimVariable::kDimaltrnd); }
    std::int16_t getDIMALTTD() const { return std::int16_t(integer(OdDbDimVariable::kDimalttd)); }
    std::uint8_t getDIMALTTZ() const { return std::uint8_t(integer(OdDbDimVariable::kDimalttz)); }
    std::int16_t getDIMALTU() const { return std::int16_t(integer(OdDbDimVariable::kDimaltu)); }
    std::uint8_t getDIMALTZ() const { return std::uint8_t(integer(OdDbDimVariable::kDimaltz)); }
    OdString getDIMAPOST() const { return text(OdDbDimVariable::kDimapost); }
    double getDIMASZ() const { return real(OdDbDimVariable::kDimasz); }
    std::int16_t getDIMATFIT() const { return std::int16_t(integer(OdDbDimVariable::kDimatfit)); }
    std::int16_t getDIMAUNIT() const { return std::int16_t(integer(OdDbDimVariable::kDimaunit)); }
    std::int16_t getDIMAZIN() const { return std::int16_t(integer(OdDbDimVariable::kDimazin)); }
    OdDbHardPointerId getDIMBLK() const { return pointer(OdDbDimVariable::kDimblk); }
    OdDbHardPointerId getDIMBLK1() const { return pointer(OdDbDimVariable::kDimblk1); }
    OdDbHardPointerId getDIMBLK2() const { return pointer(OdDbDimVariable::kDimblk2); }
    double getDIMCEN() const { return real(OdDbDimVariable::kDimcen); }
    OdCmColor getDIMCLRD() const { return color(OdDbDimVariable::kDimclrd); }
    OdCmColor getDIMCLRE() const { return color(OdDbDimVariable::kDimclre); }
    OdCmColor getDIMCLRT() const { return color(OdDbDimVariable::kDimclrt); }
    std::int16_t getDIMDEC() const { return std::int16_t(integer(OdDbDimVariable::kDimdec)); }
    double getDIMDLE() const { return real(OdDbDimVariable::kDimdle); }
    double getDIMDLI() const { return real(OdDbDimVariable::kDimdli); }
    std::int16_t getDIMDSEP() const { return std::int16_t(integer(OdDbDimVariable::kDimdsep)); }
    double getDIMEXE() const { return real(OdDbDimVariable::kDimexe); }
    double getDIMEXO() const { return real(OdDbDimVariable::kDimexo); }
    std::int16_t getDIMFRAC() const { return std::int16_t(integer(OdDbDimVariable::kDimfrac)); }
    double getDIMGAP() const { return real(OdDbDimVariable::kDimgap); }
    std::uint16_t getDIMJUST() const { return std::uint16_t(integer(OdDbDimVariable::kDimjust)); }
    OdDbHardPointerId getDIMLDRBLK() const { return pointer(OdDbDimVariable::kDimldrblk); }
    double getDIMLFAC() const { return real(OdDbDimVariable::kDimlfac); }
    bool getDIMLIM() const { return flag(OdDbDimVariable::kDimlim); }
    std::int16_t getDIMLUNIT() const { return std::int16_t(integer(OdDbDimVariable::kDimlunit)); }
    OdDb::LineWeight getDIMLWD() const { return lineWeight(OdDbDimVariable::kDimlwd); }
    OdDb::LineWeight getDIMLWE() const { return lineWeight(OdDbDimVariable::kDimlwe); }
    OdString getDIMPOST() const { return text(OdDbDimVariable::kDimpost); }
    double getDIMRND() const { return real(OdDbDimVariable::kDimrnd); }
    bool getDIMSAH() const { return flag(OdDbDimVariable::kDimsah); }
    double getDIMSCALE() const { return real(OdDbDimVariable::kDimscale); }
    bool getDIMSD1() const { return flag(OdDbDimVariable::kDimsd1); }
    bool getDIMSD2() const { return flag(OdDbDimVariable::kDimsd2); }
    bool getDIMSE1() const { return flag(OdDbDimVariable::kDimse1); }
    bool getDIMSE2() const { return flag(OdDbDimVariable::kDimse2); }
    bool getDIMSOXD() const { return flag(OdDbDimVariable::kDimsoxd); }
    std::int16_t getDIMTAD() const { return std::int16_t(integer(OdDbDimVariable::kDimtad)); }
    std::int16_t getDIMTDEC() const { return std::int16_t(integer(OdDbDimVariable::kDimtdec)); }
    double getDIMTFAC() const { return real(OdDbDimVariable::kDimtfac); }
    bool getDIMTIH() const { return flag(OdDbDimVariable::kDimtih); }
    bool getDIMTIX() const { return flag(OdDbDimVariable::kDimtix); }
    double getDIMTM() const { return real(OdDbDimVariable::kDimtm); }
    std::int16_t getDIMTMOVE() const { return std::int16_t(integer(OdDbDimVariable::kDimtmove)); }
    bool getDIMTOFL() const { return flag(OdDbDimVariable::kDimtofl); }
    bool getDIMTOH() const { return flag(OdDbDimVariable::kDimtoh); }
    bool getDIMTOL() const { return flag(OdDbDimVariable::kDimtol); }
    std::uint8_t getDIMTOLJ() const { return std::uint8_t(integer(OdDbDimVariable::kDimtolj)); }
    double getDIMTP() const { return real(OdDbDimVariable::kDimtp); }
    double getDIMTSZ() const { return real(OdDbDimVariable::kDimtsz); }
    double getDIMTVP() const { return real(OdDbDimVariable::kDimtvp); }
    OdDbHardPointerId getDIMTXSTY() const { return pointer(OdDbDimVariable::kDimtxsty); }
    double getDIMTXT() const { return real(OdDbDimVariable::kDimtxt); }
    std::uint8_t getDIMTZIN() const { return std::uint8_t(integer(OdDbDimVariable::kDimtzin)); }
    bool getDIMUPT() const { return flag(OdDbDimVariable::kDimupt); }
    std::uint8_t getDIMZIN() const { return std::uint8_t(integer(OdDbDimVariable::kDimzin)); }
    double getDIMFXL() const { return real(OdDbDimVariable::kDimfxl); }
    bool getDIMFXLON() const { return flag(OdDbDimVariable::kDimfxlon); }
    /// In radians.
    double getDIMJOGANG() const { return real(OdDbDimVariable::kDimjogang); }
    std::int16_t getDIMTFILL() const { return std::int16_t(integer(OdDbDimVariable::kDimtfill)); }
    OdCmColor getDIMTFILLCLR() const { return color(OdDbDimVariable::kDimtfillclr); }
    std::int16_t getDIMARCSYM() const { return std::int16_t(integer(OdDbDimVariable::kDimarcsym)); }
    OdDbHardPointerId getDIMLTYPE() const { return pointer(OdDbDimVariable::kDimltype); }
    OdDbHardPointerId getDIMLTEX1() const { return pointer(OdDbDimVariable::kDimltex1); }
    OdDbHardPointerId getDIMLTEX2() const { return pointer(OdDbDimVariable::kDimltex2); }
    bool getDIMTXTDIRECTION() const { return flag(OdDbDimVariable::kDimtxtdirection); }
    double getDIMMZF() const { return real(OdDbDimVariable::kDimmzf); }
    OdString getDIMMZS() const { return text(OdDbDimVariable::kDimmzs); }
    double getDIMALTMZF() const { return real(OdDbDimVariable::kDimaltmzf); }
    OdString getDIMALTMZS() const { return text(OdDbDimVariable::kDimaltmzs); }

    void setDIMADEC(std::int16_t value) { setInteger(OdDbDimVariable::kDimadec, value); }
    void setDIMALT(bool value) { setFlag(OdDbDimVariable::kDimalt, value); }
    void setDIMALTD(std::uint16_t value) { setInteger(OdDbDimVariable::kDimaltd, value); }
    void setDIMALTF(double value) { setReal(OdDbDimVariable::kDimaltf, value); }
    void setDIMALTRND(double value) { setReal(OdDbDimVariable::kDimaltrnd, value); }
    void setDIMALTTD(std::int16_t value) { setInteger(OdDbDimVariable::kDimalttd, value); }
    void setDIMALTTZ(std::uint8_t value) { setInteger(OdDbDimVariable::kDimalttz, value); }
    void setDIMALTU(std::int16_t value) { setInteger(OdDbDimVariable::kDimaltu, value); }
    void setDIMALTZ(std::uint8_t value) { setInteger(OdDbDimVariable::kDimaltz, value); }
    void setDIMAPOST(const OdString &value) { setText(OdDbDimVariable::kDimapost, value); }
    void setDIMASZ(double value) { setReal(OdDbDimVariable::kDimasz, value); }
    void setDIMATFIT(std::int16_t value) { setInteger(OdDbDimVariable::kDimatfit, value); }
    void setDIMAUNIT(std::int16_t value) { setInteger(OdDbDimVariable::kDimaunit, value); }
    void setDIMAZIN(std::int16_t value) { setInteger(OdDbDimVariable::kDimazin, value); }
    void setDIMBLK(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimblk, value); }
    void setDIMBLK1(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimblk1, value); }
    void setDIMBLK2(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimblk2, value); }
    void setDIMCEN(double value) { setReal(OdDbDimVariable::kDimcen, value); }
    void setDIMCLRD(const OdCmColor &value) { setColor(OdDbDimVariable::kDimclrd, value); }
    void setDIMCLRE(const OdCmColor &value) { setColor(OdDbDimVariable::kDimclre, value); }
    void setDIMCLRT(const OdCmColor &value) { setColor(OdDbDimVariable::kDimclrt, value); }
    void setDIMDEC(std::int16_t value) { setInteger(OdDbDimVariable::kDimdec, value); }
    void setDIMDLE(double value) { setReal(OdDbDimVariable::kDimdle, value); }
    void setDIMDLI(double value) { setReal(OdDbDimVariable::kDimdli, value); }
    void setDIMDSEP(std::int16_t value) { setInteger(OdDbDimVariable::kDimdsep, value); }
    void setDIMEXE(double value) { setReal(OdDbDimVariable::kDimexe, value); }
    void setDIMEXO(double value) { setReal(OdDbDimVariable::kDimexo, value); }
    void setDIMFRAC(std::int16_t value) { setInteger(OdDbDimVariable::kDimfrac, value); }
    void setDIMGAP(double value) { setReal(OdDbDimVariable::kDimgap, value); }
    void setDIMJUST(std::uint16_t value) { setInteger(OdDbDimVariable::kDimjust, value); }
    void setDIMLDRBLK(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimldrblk, value); }
    void setDIMLFAC(double value) { setReal(OdDbDimVariable::kDimlfac, value); }
    void setDIMLIM(bool value) { setFlag(OdDbDimVariable::kDimlim, value); }
    void setDIMLUNIT(std::int16_t value) { setInteger(OdDbDimVariable::kDimlunit, value); }
    void setDIMLWD(OdDb::LineWeight value) { setLineWeight(OdDbDimVariable::kDimlwd, value); }
    void setDIMLWE(OdDb::LineWeight value) { setLineWeight(OdDbDimVariable::kDimlwe, value); }
    void setDIMPOST(const OdString &value) { setText(OdDbDimVariable::kDimpost, value); }
    void setDIMRND(double value) { setReal(OdDbDimVariable::kDimrnd, value); }
    void setDIMSAH(bool value) { setFlag(OdDbDimVariable::kDimsah, value); }
    void setDIMSCALE(double value) { setReal(OdDbDimVariable::kDimscale, value); }
    void setDIMSD1(bool value) { setFlag(OdDbDimVariable::kDimsd1, value); }
    void setDIMSD2(bool value) { setFlag(OdDbDimVariable::kDimsd2, value); }
    void setDIMSE1(bool value) { setFlag(OdDbDimVariable::kDimse1, value); }
    void setDIMSE2(bool value) { setFlag(OdDbDimVariable::kDimse2, value); }
    void setDIMSOXD(bool value) { setFlag(OdDbDimVariable::kDimsoxd, value); }
    void setDIMTAD(std::int16_t value) { setInteger(OdDbDimVariable::kDimtad, value); }
    void setDIMTDEC(std::int16_t value) { setInteger(OdDbDimVariable::kDimtdec, value); }
    void setDIMTFAC(double value) { setReal(OdDbDimVariable::kDimtfac, value); }
    void setDIMTIH(bool value) { setFlag(OdDbDimVariable::kDimtih, value); }
    void setDIMTIX(bool value) { setFlag(OdDbDimVariable::kDimtix, value); }
    void setDIMTM(double value) { setReal(OdDbDimVariable::kDimtm, value); }
    void setDIMTMOVE(std::int16_t value) { setInteger(OdDbDimVariable::kDimtmove, value); }
    void setDIMTOFL(bool value) { setFlag(OdDbDimVariable::kDimtofl, value); }
    void setDIMTOH(bool value) { setFlag(OdDbDimVariable::kDimtoh, value); }
    void setDIMTOL(bool value) { setFlag(OdDbDimVariable::kDimtol, value); }
    void setDIMTOLJ(std::uint8_t value) { setInteger(OdDbDimVariable::kDimtolj, value); }
    void setDIMTP(double value) { setReal(OdDbDimVariable::kDimtp, value); }
    void setDIMTSZ(double value) { setReal(OdDbDimVariable::kDimtsz, value); }
    void setDIMTVP(double value) { setReal(OdDbDimVariable::kDimtvp, value); }
    void setDIMTXSTY(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimtxsty, value); }
    void setDIMTXT(double value) { setReal(OdDbDimVariable::kDimtxt, value); }
    void setDIMTZIN(std::uint8_t value) { setInteger(OdDbDimVariable::kDimtzin, value); }
    void setDIMUPT(bool value) { setFlag(OdDbDimVariable::kDimupt, value); }
    void setDIMZIN(std::uint8_t value) { setInteger(OdDbDimVariable::kDimzin, value); }
    void setDIMFXL(double value) { setReal(OdDbDimVariable::kDimfxl, value); }
    void setDIMFXLON(bool value) { setFlag(OdDbDimVariable::kDimfxlon, value); }
    /// In radians.
    void setDIMJOGANG(double value) { setReal(OdDbDimVariable::kDimjogang, value); }
    void setDIMTFILL(std::int16_t value) { setInteger(OdDbDimVariable::kDimtfill, value); }
    void setDIMTFILLCLR(const OdCmColor &value) { setColor(OdDbDimVariable::kDimtfillclr, value); }
    void setDIMARCSYM(std::int16_t value) { setInteger(OdDbDimVariable::kDimarcsym, value); }
    void setDIMLTYPE(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimltype, value); }
    void setDIMLTEX1(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimltex1, value); }
    void setDIMLTEX2(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimltex2, value); }
    void setDIMTXTDIRECTION(bool value) { setFlag(OdDbDimVariable::kDimtxtdirection, value); }
    void setDIMMZF(double value) { setReal(OdDbDimVariable::kDimmzf, value); }
    void setDIMMZS(const OdString &value) { setText(OdDbDimVariable::kDimmzs, value); }
    void setDIMALTMZF(double value) { setReal(OdDbDimVariable::kDimaltmzf, value); }
    void setDIMALTMZS(const OdString &value) { setText(OdDbDimVariable::kDimaltmzs, value); }

protected:
    OdDbDimensionSettings() = default;

private:
    std::int64_t integer(OdDbDimVariable variable) const;
    bool flag(OdDbDimVariable variable) const { return integer(variable) != 0; }
    OdDb::LineWeight lineWeight(OdDbDimVariable variable) const;
    double real(OdDbDimVariable variable) const;
    OdString text(OdDbDimVariable variable) const;
    OdCmColor color(OdDbDimVariable variable) const;
    OdDbHardPointerId pointer(OdDbDimVariable variable) const;

    void setInteger(OdDbDimVariable variable, std::int64_t value);
    void setFlag(OdDbDimVariable variable, bool value) { setInteger(variable, value ? 1 : 0); }
    void setLineWeight(OdDbDimVariable variable, OdDb::LineWeight value);
    void setReal(OdDbDimVariable variable, double value);
    void setText(OdDbDimVariable variable, const OdString &value);
    void setColor(OdDbDimVariable variable, const OdCmColor &value);
    void setPointer(OdDbDimVariable variable, OdDbHardPointerId value);
};

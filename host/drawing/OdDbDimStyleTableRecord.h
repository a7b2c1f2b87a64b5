// SPDX-License-Identifier: MIT
#pragma once

#include "OdCmColor.h"
#include "OdDbDimVariable.h"
#include "OdDbSymbolTableRecord.h"

class OdDbDimStyleTableRecord;
using OdDbDimStyleTableRecordPtr = OdSmartPtr<OdDbDimStyleTableRecord>;

/// A dimension style. A setting that the file leaves out has its default. Settings that are newer
/// than the version of the drawing are kept in extended data; one that the version has no place for
/// stays as it was. A pointer to an object of another drawing, or to an erased one, is null.
class KV_HOST_API OdDbDimStyleTableRecord : public OdDbSymbolTableRecord
{
public:
    static OdRxClass *desc();
    static OdDbDimStyleTableRecordPtr cast(const OdRxObject *object);
    static OdDbDimStyleTableRecordPtr createObject();

    std::int16_t dimadec() const { return std::int16_t(integer(OdDbDimVariable::kDimadec)); }
    bool dimalt() const { return flag(OdDbDimVariable::kDimalt); }
    std::uint16_t dimaltd() const { return std::uint16_t(integer(OdDbDimVariable::kDimaltd)); }
    double dimaltf() const { return real(OdDbDimVariable::kDimaltf); }
    double dimaltrnd() const { return real(OdDbDimVariable::kDimaltrnd); }
    std::int16_t dimalttd() const { return std::int16_t(integer(OdDbDimVariable::kDimalttd)); }
    std::uint8_t dimalttz() const { return std::uint8_t(integer(OdDbDimVariable::kDimalttz)); }
    std::int16_t dimaltu() const { return std::int16_t(integer(OdDbDimVariable::kDimaltu)); }
    std::uint8_t dimaltz() const { return std::uint8_t(integer(OdDbDimVariable::kDimaltz)); }
    OdString dimapost() const { return text(OdDbDimVariable::kDimapost); }
    double dimasz() const { return real(OdDbDimVariable::kDimasz); }
    std::int16_t dimatfit() const { return std::int16_t(integer(OdDbDimVariable::kDimatfit)); }
    std::int16_t dimaunit() const { return std::int16_t(integer(OdDbDimVariable::kDimaunit)); }
    std::int16_t dimazin() const { return std::int16_t(integer(OdDbDimVariable::kDimazin)); }
    OdDbHardPointerId dimblk() const { return pointer(OdDbDimVariable::kDimblk); }
    OdDbHardPointerId dimblk1() const { return pointer(OdDbDimVariable::kDimblk1); }
    OdDbHardPointerId dimblk2() const { return pointer(OdDbDimVariable::kDimblk2); }
    double dimcen() const { return real(OdDbDimVariable::kDimcen); }
    OdCmColor dimclrd() const { return color(OdDbDimVariable::kDimclrd); }
    OdCmColor dimclre() const { return color(OdDbDimVariable::kDimclre); }
    OdCmColor dimclrt() const { return color(OdDbDimVariable::kDimclrt); }
    std::int16_t dimdec() const { return std::int16_t(integer(OdDbDimVariable::kDimdec)); }
    double dimdle() const { return real(OdDbDimVariable::kDimdle); }
    double dimdli() const { return real(OdDbDimVariable::kDimdli); }
    std::int16_t dimdsep() const { return std::int16_t(integer(OdDbDimVariable::kDimdsep)); }
    double dimexe() const { return real(OdDbDimVariable::kDimexe); }
    double dimexo() const { return real(OdDbDimVariable::kDimexo); }
    std::int16_t dimfrac() const { return std::int16_t(integer(OdDbDimVariable::kDimfrac)); }
    double dimgap() const { return real(OdDbDimVariable::kDimgap); }
    std::uint16_t dimjust() const { return std::uint16_t(integer(OdDbDimVariable::kDimjust)); }
    OdDbHardPointerId dimldrblk() const { return pointer(OdDbDimVariable::kDimldrblk); }
    double dimlfac() const { return real(OdDbDimVariable::kDimlfac); }
    bool dimlim() const { return flag(OdDbDimVariable::kDimlim); }
    std::int16_t dimlunit() const { return std::int16_t(integer(OdDbDimVariable::kDimlunit)); }
    OdDb::LineWeight dimlwd() const { return lineWeight(OdDbDimVariable::kDimlwd); }
    OdDb::LineWeight dimlwe() const { return lineWeight(OdDbDimVariable::kDimlwe); }
    OdString dimpost() const { return text(OdDbDimVariable::kDimpost); }
    double dimrnd() const { return real(OdDbDimVariable::kDimrnd); }
    bool dimsah() const { return flag(OdDbDimVariable::kDimsah); }
    double dimscale() const { return real(OdDbDimVariable::kDimscale); }
    bool dimsd1() const { return flag(OdDbDimVariable::kDimsd1); }
    bool dimsd2() const { return flag(OdDbDimVariable::kDimsd2); }
    bool dimse1() const { return flag(OdDbDimVariable::kDimse1); }
    bool dimse2() const { return flag(OdDbDimVariable::kDimse2); }
    bool dimsoxd() const { return flag(OdDbDimVariable::kDimsoxd); }
    std::int16_t dimtad() const { return std::int16_t(integer(OdDbDimVariable::kDimtad)); }
    std::int16_t dimtdec() const { return std::int16_t(integer(OdDbDimVariable::kDimtdec)); }
    double dimtfac() const { return real(OdDbDimVariable::kDimtfac); }
    bool dimtih() const { return flag(OdDbDimVariable::kDimtih); }
    bool dimtix() const { return flag(OdDbDimVariable::kDimtix); }
    double dimtm() const { return real(OdDbDimVariable::kDimtm); }
    std::int16_t dimtmove() const { return std::int16_t(integer(OdDbDimVariable::kDimtmove)); }
    bool dimtofl() const { return flag(OdDbDimVariable::kDimtofl); }
    bool dimtoh() const { return flag(OdDbDimVariable::kDimtoh); }
    bool dimtol() const { return flag(OdDbDimVariable::kDimtol); }
    std::uint8_t dimtolj() const { return std::uint8_t(integer(OdDbDimVariable::kDimtolj)); }
    double dimtp() const { return real(OdDbDimVariable::kDimtp); }
    double dimtsz() const { return real(OdDbDimVariable::kDimtsz); }
    double dimtvp() const { return real(OdDbDimVariable::kDimtvp); }
    OdDbHardPointerId dimtxsty() const { return pointer(OdDbDimVariable::kDimtxsty); }
    double dimtxt() const { return real(OdDbDimVariable::kDimtxt); }
    std::uint8_t dimtzin() const { return std::uint8_t(integer(OdDbDimVariable::kDimtzin)); }
    bool dimupt() const { return flag(OdDbDimVariable::kDimupt); }
    std::uint8_t dimzin() const { return std::uint8_t(integer(OdDbDimVariable::kDimzin)); }
    double dimfxl() const { return real(OdDbDimVariable::kDimfxl); }
    bool dimfxlon() const { return flag(OdDbDimVariable::kDimfxlon); }
    /// In radians.
    double dimjogang() const { return real(OdDbDimVariable::kDimjogang); }
    std::int16_t dimtfill() const { return std::int16_t(integer(OdDbDimVariable::kDimtfill)); }
    OdCmColor dimtfillclr() const { return color(OdDbDimVariable::kDimtfillclr); }
    std::int16_t dimarcsym() const { return std::int16_t(integer(OdDbDimVariable::kDimarcsym)); }
    OdDbHardPointerId dimltype() const { return pointer(OdDbDimVariable::kDimltype); }
    OdDbHardPointerId dimltex1() const { return pointer(OdDbDimVariable::kDimltex1); }
    OdDbHardPointerId dimltex2() const { return pointer(OdDbDimVariable::kDimltex2); }
    bool dimtxtdirection() const { return flag(OdDbDimVariable::kDimtxtdirection); }
    double dimmzf() const { return real(OdDbDimVariable::kDimmzf); }
    OdString dimmzs() const { return text(OdDbDimVariable::kDimmzs); }
    double dimaltmzf() const { return real(OdDbDimVariable::kDimaltmzf); }
    OdString dimaltmzs() const { return text(OdDbDimVariable::kDimaltmzs); }

    void setDimadec(std::int16_t value) { setInteger(OdDbDimVariable::kDimadec, value); }
    void setDimalt(bool value) { setFlag(OdDbDimVariable::kDimalt, value); }
    void setDimaltd(std::uint16_t value) { setInteger(OdDbDimVariable::kDimaltd, value); }
    void setDimaltf(double value) { setReal(OdDbDimVariable::kDimaltf, value); }
    void setDimaltrnd(double value) { setReal(OdDbDimVariable::kDimaltrnd, value); }
    void setDimalttd(std::int16_t value) { setInteger(OdDbDimVariable::kDimalttd, value); }
    void setDimalttz(std::uint8_t value) { setInteger(OdDbDimVariable::kDimalttz, value); }
    void setDimaltu(std::int16_t value) { setInteger(OdDbDimVariable::kDimaltu, value); }
    void setDimaltz(std::uint8_t value) { setInteger(OdDbDimVariable::kDimaltz, value); }
    void setDimapost(const OdString &value) { setText(OdDbDimVariable::kDimapost, value); }
    void setDimasz(double value) { setReal(OdDbDimVariable::kDimasz, value); }
    void setDimatfit(std::int16_t value) { setInteger(OdDbDimVariable::kDimatfit, value); }
    void setDimaunit(std::int16_t value) { setInteger(OdDbDimVariable::kDimaunit, value); }
    void setDimazin(std::int16_t value) { setInteger(OdDbDimVariable::kDimazin, value); }
    void setDimblk(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimblk, value); }
    void setDimblk1(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimblk1, value); }
    void setDimblk2(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimblk2, value); }
    void setDimcen(double value) { setReal(OdDbDimVariable::kDimcen, value); }
    void setDimclrd(const OdCmColor &value) { setColor(OdDbDimVariable::kDimclrd, value); }
    void setDimclre(const OdCmColor &value) { setColor(OdDbDimVariable::kDimclre, value); }
    void setDimclrt(const OdCmColor &value) { setColor(OdDbDimVariable::kDimclrt, value); }
    void setDimdec(std::int16_t value) { setInteger(OdDbDimVariable::kDimdec, value); }
    void setDimdle(double value) { setReal(OdDbDimVariable::kDimdle, value); }
    void setDimdli(double value) { setReal(OdDbDimVariable::kDimdli, value); }
    void setDimdsep(std::int16_t value) { setInteger(OdDbDimVariable::kDimdsep, value); }
    void setDimexe(double value) { setReal(OdDbDimVariable::kDimexe, value); }
    void setDimexo(double value) { setReal(OdDbDimVariable::kDimexo, value); }
    void setDimfrac(std::int16_t value) { setInteger(OdDbDimVariable::kDimfrac, value); }
    void setDimgap(double value) { setReal(OdDbDimVariable::kDimgap, value); }
    void setDimjust(std::uint16_t value) { setInteger(OdDbDimVariable::kDimjust, value); }
    void setDimldrblk(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimldrblk, value); }
    void setDimlfac(double value) { setReal(OdDbDimVariable::kDimlfac, value); }
    void setDimlim(bool value) { setFlag(OdDbDimVariable::kDimlim, value); }
    void setDimlunit(std::int16_t value) { setInteger(OdDbDimVariable::kDimlunit, value); }
    void setDimlwd(OdDb::LineWeight value) { setLineWeight(OdDbDimVariable::kDimlwd, value); }
    void setDimlwe(OdDb::LineWeight value) { setLineWeight(OdDbDimVariable::kDimlwe, value); }
    void setDimpost(const OdString &value) { setText(OdDbDimVariable::kDimpost, value); }
    void setDimrnd(double value) { setReal(OdDbDimVariable::kDimrnd, value); }
    void setDimsah(bool value) { setFlag(OdDbDimVariable::kDimsah, value); }
    void setDimscale(double value) { setReal(OdDbDimVariable::kDimscale, value); }
    void setDimsd1(bool value) { setFlag(OdDbDimVariable::kDimsd1, value); }
    void setDimsd2(bool value) { setFlag(OdDbDimVariable::kDimsd2, value); }
    void setDimse1(bool value) { setFlag(OdDbDimVariable::kDimse1, value); }
    void setDimse2(bool value) { setFlag(OdDbDimVariable::kDimse2, value); }
    void setDimsoxd(bool value) { setFlag(OdDbDimVariable::kDimsoxd, value); }
    void setDimtad(std::int16_t value) { setInteger(OdDbDimVariable::kDimtad, value); }
    void setDimtdec(std::int16_t value) { setInteger(OdDbDimVariable::kDimtdec, value); }
    void setDimtfac(double value) { setReal(OdDbDimVariable::kDimtfac, value); }
    void setDimtih(bool value) { setFlag(OdDbDimVariable::kDimtih, value); }
    void setDimtix(bool value) { setFlag(OdDbDimVariable::kDimtix, value); }
    void setDimtm(double value) { setReal(OdDbDimVariable::kDimtm, value); }
    void setDimtmove(std::int16_t value) { setInteger(OdDbDimVariable::kDimtmove, value); }
    void setDimtofl(bool value) { setFlag(OdDbDimVariable::kDimtofl, value); }
    void setDimtoh(bool value) { setFlag(OdDbDimVariable::kDimtoh, value); }
    void setDimtol(bool value) { setFlag(OdDbDimVariable::kDimtol, value); }
    void setDimtolj(std::uint8_t value) { setInteger(OdDbDimVariable::kDimtolj, value); }
    void setDimtp(double value) { setReal(OdDbDimVariable::kDimtp, value); }
    void setDimtsz(double value) { setReal(OdDbDimVariable::kDimtsz, value); }
    void setDimtvp(double value) { setReal(OdDbDimVariable::kDimtvp, value); }
    void setDimtxsty(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimtxsty, value); }
    void setDimtxt(double value) { setReal(OdDbDimVariable::kDimtxt, value); }
    void setDimtzin(std::uint8_t value) { setInteger(OdDbDimVariable::kDimtzin, value); }
    void setDimupt(bool value) { setFlag(OdDbDimVariable::kDimupt, value); }
    void setDimzin(std::uint8_t value) { setInteger(OdDbDimVariable::kDimzin, value); }
    void setDimfxl(double value) { setReal(OdDbDimVariable::kDimfxl, value); }
    void setDimfxlon(bool value) { setFlag(OdDbDimVariable::kDimfxlon, value); }
    /// In radians.
    void setDimjogang(double value) { setReal(OdDbDimVariable::kDimjogang, value); }
    void setDimtfill(std::int16_t value) { setInteger(OdDbDimVariable::kDimtfill, value); }
    void setDimtfillclr(const OdCmColor &value) { setColor(OdDbDimVariable::kDimtfillclr, value); }
    void setDimarcsym(std::int16_t value) { setInteger(OdDbDimVariable::kDimarcsym, value); }
    void setDimltype(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimltype, value); }
    void setDimltex1(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimltex1, value); }
    void setDimltex2(OdDbHardPointerId value) { setPointer(OdDbDimVariable::kDimltex2, value); }
    void setDimtxtdirection(bool value) { setFlag(OdDbDimVariable::kDimtxtdirection, value); }
    void setDimmzf(double value) { setReal(OdDbDimVariable::kDimmzf, value); }
    void setDimmzs(const OdString &value) { setText(OdDbDimVariable::kDimmzs, value); }
    void setDimaltmzf(double value) { setReal(OdDbDimVariable::kDimaltmzf, value); }
    void setDimaltmzs(const OdString &value) { setText(OdDbDimVariable::kDimaltmzs, value); }

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

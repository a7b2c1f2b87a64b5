// SPDX-License-Identifier: MIT
#include "OdDbTextStyleTableRecord.h"

#include "CKvObjectAccess.h"
#include "angles.h"
#include "extendedData.h"
#include "giFromDbTextStyle.h"
#include "makeRecord.h"
#include "objectTags.h"
#include "rxConstruction.h"

#include <cmath>

namespace
{

constexpr int kShapeFileFlag = 1;
constexpr int kVerticalFlag = 4;
constexpr int kBackwardsFlag = 2;
constexpr int kUpsideDownFlag = 4;

constexpr std::string_view kFontApplication = "ACAD";
constexpr std::uint32_t kBoldFlag = 0x02000000;
constexpr std::uint32_t kItalicFlag = 0x01000000;
constexpr unsigned kCharsetShift = 8;
constexpr std::uint32_t kByte = 0xFF;

constexpr double kDegreesInHalfTurn = 180;

/// Where groups of a text style stand: behind the one before them that is there.
constexpr std::initializer_list<int> kBehindSize = { 70, 2 };
constexpr std::initializer_list<int> kBehindXScale = { 40, 70, 2 };
constexpr std::initializer_list<int> kBehindAngle = { 41, 40, 70, 2 };
constexpr std::initializer_list<int> kBehindGeneration = { 50, 41, 40, 70, 2 };
constexpr std::initializer_list<int> kBehindFile = { 42, 71, 50, 41, 40, 70, 2 };
constexpr std::initializer_list<int> kBehindBigFont = { 3, 42, 71, 50, 41, 40, 70, 2 };

std::int64_t integerOf(const CKvObjectSlot &slot, int code)
{
    const std::optional<CKvTag> tag = findTag(slot, code);
    return tag ? tag->integer() : 0;
}

double realOf(const CKvObjectSlot &slot, int code, double fallback)
{
    const std::optional<CKvTag> tag = findTag(slot, code);
    return tag ? tag->real(fallback) : fallback;
}

OdString textOf(const CKvObjectSlot &slot, int code)
{
    const std::optional<CKvTag> tag = findTag(slot, code);
    return tag ? OdString(slot.format().codec.decode(tag->value)) : OdString();
}

void setFlag(
    CKvObjectSlot &slot, int code, int flag, bool isSet, std::initializer_list<int> anchors)
{
    const std::int64_t before = integerOf(slot, code);
    const std::int64_t after = isSet ? before | flag : before & ~std::int64_t(flag);
    if (after != before) {
        setTag(slot, code, std::to_string(after), anchors);
    }
}

/// The exact number of before means that the file's spelling stays.
void setReal(
    CKvObjectSlot &slot, int code, double value, double before, std::initializer_list<int> anchors)
{
    if (value != before) {
        setTag(slot, code, spelledReal(value), anchors);
    }
}

void setText(CKvObjectSlot &slot,
             int code,
             const OdString &text,
             std::initializer_list<int> anchors)
{
    setTag(slot, code, slot.format().codec.encode(text.toQString()), anchors);
}

/// 15 degrees in radians and back is 15.000000000000002; nobody who reads the file wants that.
double degreesOf(double radians)
{
    constexpr double kDigits = 1e11;
    const double degrees = radians * kDegreesInHalfTurn / kPi;
    const double rounded = std::round(degrees * kDigits) / kDigits;
    return std::isfinite(rounded) ? rounded : degrees;
}

bool isTrueTypeFile(const OdString &name)
{
    for (const char *ending : { ".ttf", ".ttc", ".otf" }) {
        if (name.toQString().endsWith(QLatin1String(ending), Qt::CaseInsensitive)) {
            return true;
        }
    }
    return false;
}

/// The typeface and the font flags of a style, as the file has them.
struct CKvTrueTypeFont {
    std::string_view typeface;
    std::uint32_t flags = 0;
};

CKvTrueTypeFont trueTypeFont(const CKvObjectSlot &slot)
{
    CKvTrueTypeFont font;
    for (const CKvTag &tag : extendedData(slot, kFontApplication)) {
        if (tag.code == 1000) {
            font.typeface = tag.value;
        } else if (tag.code == 1071) {
            font.flags = std::uint32_t(tag.integer());
        }
    }
    return font;
}

/// Gives the last group of a code its value, or adds the group.
void setGroup(CKvExtendedGroups &groups, int code, const std::string &value)
{
    for (auto group = groups.rbegin(); group != groups.rend(); ++group) {
        if (group->first == code) {
            group->second = value;
            return;
        }
    }
    groups.emplace_back(code, value);
}

void writeTrueTypeFont(CKvObjectSlot &slot, const std::string &typeface, std::uint32_t flags)
{
    CKvExtendedGroups groups;
    for (const CKvTag &tag : extendedData(slot, kFontApplication)) {
        groups.emplace_back(tag.code, asciiValue(tag));
    }
    if (groups.empty() && typeface.empty() && flags == 0) {
        return;
    }
    setGroup(groups, 1000, typeface);
    // The file has the flags as a number with a sign.
    setGroup(groups, 1071, std::to_string(std::int32_t(flags)));
    setExtendedData(slot, kFontApplication, groups);
}

} // namespace

OdRxClass *OdDbTextStyleTableRecord::desc()
{
    static OdRxClass s_class(OdString("OdDbTextStyleTableRecord"),
                             OdDbSymbolTableRecord::desc(),
                             &constructRx<OdDbTextStyleTableRecord>,
                             OdString("STYLE"));
    return &s_class;
}

OdDbTextStyleTableRecordPtr OdDbTextStyleTableRecord::cast(const OdRxObject *object)
{
    return castRx<OdDbTextStyleTableRecord>(object);
}

OdDbTextStyleTableRecordPtr OdDbTextStyleTableRecord::createObject()
{
    return makeRecord<OdDbTextStyleTableRecord>("STYLE", "AcDbTextStyleTableRecord");
}

bool OdDbTextStyleTableRecord::isShapeFile() const
{
    return (integerOf(*CKvObjectAccess::slotOf(*this), 70) & kShapeFileFlag) != 0;
}

bool OdDbTextStyleTableRecord::isVertical() const
{
    return (integerOf(*CKvObjectAccess::slotOf(*this), 70) & kVerticalFlag) != 0;
}

void OdDbTextStyleTableRecord::setIsVertical(bool isVertical)
{
    setFlag(CKvObjectAccess::beginChange(*this), 70, kVerticalFlag, isVertical, { 2 });
}

OdString OdDbTextStyleTableRecord::fileName() const
{
    return textOf(*CKvObjectAccess::slotOf(*this), 3);
}

void OdDbTextStyleTableRecord::setFileName(const OdString &name)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (name == fileName()) {
        return;
    }
    setText(slot, 3, name, kBehindFile);
    const CKvTrueTypeFont font = trueTypeFont(slot);
    if (!name.isEmpty() && !isTrueTypeFile(name) && !font.typeface.empty()) {
        writeTrueTypeFont(slot, std::string(), font.flags);
    }
}

OdString OdDbTextStyleTableRecord::bigFontFileName() const
{
    return textOf(*CKvObjectAccess::slotOf(*this), 4);
}

void OdDbTextStyleTableRecord::setBigFontFileName(const OdString &name)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (name != bigFontFileName()) {
        setText(slot, 4, name, kBehindBigFont);
    }
}

double OdDbTextStyleTableRecord::textSize() const
{
    return realOf(*CKvObjectAccess::slotOf(*this), 40, 0);
}

void OdDbTextStyleTableRecord::setTextSize(double size)
{
    setReal(CKvObjectAccess::beginChange(*this), 40, size, textSize(), kBehindSize);
}

double OdDbTextStyleTableRecord::xScale() const
{
    return realOf(*CKvObjectAccess::slotOf(*this), 41, 1);
}

void OdDbTextStyleTableRecord::setXScale(double factor)
{
    setReal(CKvObjectAccess::beginChange(*this), 41, factor, xScale(), kBehindXScale);
}

double OdDbTextStyleTableRecord::obliquingAngle() const
{
    return realOf(*CKvObjectAccess::slotOf(*this), 50, 0) * kPi / kDegreesInHalfTurn;
}

void OdDbTextStyleTableRecord::setObliquingAngle(double radians)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    if (radians != obliquingAngle()) {
        setTag(slot, 50, spelledReal(degreesOf(radians)), kBehindAngle);
    }
}

bool OdDbTextStyleTableRecord::isBackwards() const
{
    return (integerOf(*CKvObjectAccess::slotOf(*this), 71) & kBackwardsFlag) != 0;
}

void OdDbTextStyleTableRecord::setIsBackwards(bool isBackwards)
{
    setFlag(
        CKvObjectAccess::beginChange(*this), 71, kBackwardsFlag, isBackwards, kBehindGeneration);
}

bool OdDbTextStyleTableRecord::isUpsideDown() const
{
    return (integerOf(*CKvObjectAccess::slotOf(*this), 71) & kUpsideDownFlag) != 0;
}

void OdDbTextStyleTableRecord::setIsUpsideDown(bool isUpsideDown)
{
    setFlag(
        CKvObjectAccess::beginChange(*this), 71, kUpsideDownFlag, isUpsideDown, kBehindGeneration);
}

void OdDbTextStyleTableRecord::font(
    OdString &typeface, bool &isBold, bool &isItalic, int &charset, int &pitchAndFamily) const
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    const CKvTrueTypeFont font = trueTypeFont(slot);
    typeface = OdString(slot.format().codec.decode(font.typeface));
    isBold = (font.flags & kBoldFlag) != 0;
    isItalic = (font.flags & kItalicFlag) != 0;
    charset = int((font.flags >> kCharsetShift) & kByte);
    pitchAndFamily = int(font.flags & kByte);
}

void OdDbTextStyleTableRecord::setFont(
    const OdString &typeface, bool isBold, bool isItalic, int charset, int pitchAndFamily)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    constexpr std::uint32_t kOwnBits = kBoldFlag | kItalicFlag | (kByte << kCharsetShift) | kByte;
    const CKvTrueTypeFont before = trueTypeFont(slot);
    // What else the file has in the flags stays.
    std::uint32_t flags = before.flags & ~kOwnBits;
    flags |= (isBold ? kBoldFlag : 0) | (isItalic ? kItalicFlag : 0);
    flags |= (std::uint32_t(charset) & kByte) << kCharsetShift;
    flags |= std::uint32_t(pitchAndFamily) & kByte;
    const CKvTextCodec &codec = slot.format().codec;
    // The bytes themselves where the name is the same: the encoding may not know all of them.
    const bool isSame = codec.decode(before.typeface) == typeface.toQString();
    writeTrueTypeFont(
        slot, isSame ? std::string(before.typeface) : codec.encode(typeface.toQString()), flags);
}

void giFromDbTextStyle(OdDbObjectId styleId, OdGiTextStyle &style)
{
    const OdDbTextStyleTableRecordPtr record(styleId.safeOpenObject());
    const bool isShx =
        trueTypeFont(*styleId.slot()).typeface.empty() && !isTrueTypeFile(record->fileName());
    style.setFlags(isShx ? style.flags() | OdGiTextStyle::kShxFont
                         : style.flags() & ~OdGiTextStyle::kShxFont);
}
